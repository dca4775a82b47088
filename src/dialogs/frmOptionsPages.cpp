// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/AttentionGroup.h"
#include "controls/CheckRow.h"
#include "controls/FileButton.h"
#include "controls/NumberBox.h"
#include "controls/fileChoosing.h"
#include "dialogs/DesktopGroup.h"
#include "dialogs/NetworkGroups.h"
#include "dialogs/frmOptions.h"
#include "dialogs/pageLayout.h"
#include "forms/Program.h"
#include "model/textFile.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPointer>

#include <cmath>
#include <limits>

using namespace pageLayout;

namespace
{

constexpr double TwipsPerInch = 1440.0;

std::optional<double> toInches(const QString &text)
{
    bool isNumber = false;
    const double inches = QString(text).replace(QLocale().decimalPoint(), QLatin1String(".")).toDouble(&isNumber);
    const bool inRange = isNumber && inches >= 0 && inches * TwipsPerInch <= double(std::numeric_limits<float>::max());
    return inRange ? std::optional(inches) : std::nullopt;
}

/// Without figures that come of the division only.
double shownInches(float twips)
{
    constexpr double Precision = 10'000;
    return std::round(double(twips) / TwipsPerInch * Precision) / Precision;
}

} // namespace

QLineEdit *frmOptions::addText(QFormLayout *rows, const QString &name, const QString &caption, QString &field)
{
    auto *box = new QLineEdit(rows->parentWidget());
    box->setObjectName(name);
    rows->addRow(caption, box);
    connect(box, &QLineEdit::textChanged, this, [&field](const QString &text) { field = textFile::flattened(text); });
    m_fill.emplace_back([box, &field] { box->setText(QString(field)); });
    return box;
}

void frmOptions::addCheck(QLayout *layout, const QString &name, const QString &caption, bool &field)
{
    auto *row = new CheckRow(name, caption, layout->parentWidget());
    layout->addWidget(row);
    connect(row->box(), &QCheckBox::toggled, this, [&field](bool on) { field = on; });
    m_fill.emplace_back([row, &field] { row->box()->setChecked(field); });
}

NumberBox *frmOptions::makeSize(const QString &name, const QString &accessibleName, float &field)
{
    auto *box = new NumberBox(name, toInches, this);
    box->setAccessibleName(accessibleName);
    box->setFixedWidth(NumberWidth);
    connect(box, &NumberBox::valueChanged, this,
            [&field](double inches) { field = static_cast<float>(inches * TwipsPerInch); });
    m_fill.emplace_back([box, &field] { box->setValue(shownInches(field)); });
    return box;
}

NumberBox *frmOptions::makePort()
{
    auto *box = new NumberBox(QStringLiteral("txtListeningPort"), toPort, this);
    box->setFixedWidth(NumberWidth);
    connect(box, &NumberBox::valueChanged, this,
            [this](double port) { m_options.ListeningPort = static_cast<qint32>(port); });
    m_fill.emplace_back([this, box] { box->setValue(m_options.ListeningPort); });
    return box;
}

void frmOptions::addBook(QFormLayout *rows, const QString &name, const QString &caption, const QString &title,
                         QString &field)
{
    auto *button = new FileButton(name, title, FileButton::Cut::Front, rows->parentWidget());
    rows->addRow(caption, button);
    connect(button, &QPushButton::clicked, this, [this, button, title, &field] {
        const QPointer<FileButton> self = button;
        const auto chosen = fileChoosing::book(program(), title, field, this);
        if (self == nullptr || !chosen)
            return;
        field = *chosen;
        button->setPath(field);
    });
    m_fill.emplace_back([button, &field] { button->setPath(field); });
}

QWidget *frmOptions::makeGeneral()
{
    QGroupBox *personal = makePersonal();
    QGroupBox *miscellaneous = makeMiscellaneous();
    QWidget *page = pageOf(this, {personal, miscellaneous});
    if (DesktopGroup::isSupported()) {
        m_desktop = new DesktopGroup(this);
        static_cast<QVBoxLayout *>(page->layout())->insertWidget(2, m_desktop);
    }
    return page;
}

QGroupBox *frmOptions::makePersonal()
{
    auto *group = new QGroupBox(tr("Personal"), this);
    QFormLayout *rows = rowsOf(group);
    m_firstText = addText(rows, QStringLiteral("txtName"), tr("&Name:"), m_options.NameName);
    addText(rows, QStringLiteral("txtNameTitle"), tr("&Title:"), m_options.NameTitle);
    addText(rows, QStringLiteral("txtOrg"), tr("Or&ganization:"), m_options.Org);
    return group;
}

QGroupBox *frmOptions::makeMiscellaneous()
{
    auto *group = new QGroupBox(tr("Miscellaneous"), this);
    QVBoxLayout *layout = column(group, Spacing / 3);
    addCheck(layout, QStringLiteral("OnTop"), tr("&Always on top"), m_options.OnTopOn);
    addCheck(layout, QStringLiteral("Toolbar"), tr("Tool&bar"), m_options.ToolBarOn);
    addCheck(layout, QStringLiteral("Title"), tr("&Prompt for new quillet title"), m_options.TitleBarOn);
    layout->addSpacing(Spacing / 2);
    layout->addWidget(new QLabel(tr("Default quillet size:"), group));
    auto *rows = new QFormLayout;
    rows->setHorizontalSpacing(Spacing);
    rows->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_height = makeSize(QStringLiteral("txtSizeHeight"), tr("Height in inches"), m_options.FrmHeight);
    m_width = makeSize(QStringLiteral("txtSizeWidth"), tr("Width in inches"), m_options.FrmWidth);
    rows->addRow(tr("&Height:"), m_height);
    rows->addRow(tr("&Width:"), m_width);
    layout->addLayout(rows);
    layout->addWidget(hint(tr("In inches, from 0.5 to 5."), group));
    return group;
}

QWidget *frmOptions::makeAlarmPassword()
{
    auto *password = new QGroupBox(tr("Password"), this);
    QVBoxLayout *choices = column(password, Spacing / 3);
    addCheck(choices, QStringLiteral("Pwd1"), tr("&Open / Close"), m_options.PwdOpenCloseOn);
    addCheck(choices, QStringLiteral("Pwd2"), tr("&Read-only"), m_options.PwdReadonlyOn);
    auto *alarm = new QGroupBox(tr("Alarm"), this);
    m_attention =
        new AttentionGroup(program(), AttentionFields::of(m_options), AttentionGroup::Place::ProgramOptions, alarm);
    QVBoxLayout *attention = column(alarm, 0);
    // The marks of its check boxes begin where those of the group above do.
    attention->setContentsMargins(attention->contentsMargins() - QMargins(CheckRow::MarkRoom, 0, 0, 0));
    attention->addWidget(m_attention);
    return pageOf(this, {password, alarm});
}

QWidget *frmOptions::makeNetworking()
{
    QGroupBox *send = makeSend();
    QGroupBox *email = makeEmail();
    m_network = new NetworkGroups(this);
    const std::initializer_list<QWidget *> groups{send, email, m_network->receiving(), m_network->mailServer()};
    QList<QFormLayout *> rows;
    for (QWidget *group : groups)
        rows.append(static_cast<QFormLayout *>(group->layout()));
    alignFields(rows);
    return pageOf(this, groups);
}

QGroupBox *frmOptions::makeSend()
{
    auto *group = new QGroupBox(tr("Send"), this);
    QFormLayout *rows = rowsOf(group);
    rows->addRow(tr("&Listening port:"), makePort());
    rows->addRow(QString(),
                 hint(tr("0 receives nothing. A changed port takes effect\nat the next start of Quillets."), group));
    addBook(rows, QStringLiteral("cmdSendBook"), tr("Send &book:"), tr("Open Send Book"), m_options.SendBook);
    return group;
}

QGroupBox *frmOptions::makeEmail()
{
    auto *group = new QGroupBox(tr("E-mail"), this);
    QFormLayout *rows = rowsOf(group);
    m_emailAddress = addText(rows, QStringLiteral("txtEmailAddress"), tr("&E-mail address:"), m_options.EmailAddress);
    addText(rows, QStringLiteral("txtSmtpServer"), tr("SMTP &server:"), m_options.SMTPServer);
    addBook(rows, QStringLiteral("cmdAddressBook"), tr("&Address book:"), tr("Open Address Book"),
            m_options.AddressBook);
    return group;
}
