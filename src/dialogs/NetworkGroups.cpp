// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/NetworkGroups.h"

#include "controls/CheckRow.h"
#include "controls/NumberBox.h"
#include "dialogs/pageLayout.h"
#include "model/textFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>

NetworkGroups::NetworkGroups(QWidget *dialog)
    : QObject(dialog), m_receiving(new QGroupBox(tr("Receiving"), dialog)),
      m_mailServer(new QGroupBox(tr("Mail server"), dialog))
{
    QFormLayout &receiving = *pageLayout::rowsOf(m_receiving);
    addChoice(receiving, "comAcceptFrom", tr("Accept notes &from:"), m_settings.AcceptFrom,
              {tr("Everybody nearby"), tr("Computers in my send book"), tr("Nobody")});
    addSwitch(receiving, "FarSenders", tr("Also from &outside the local network"), m_settings.FarSendersOn);
    addBlocked(receiving);
    addSwitch(receiving, "Announce", tr("Le&t computers nearby find this one"), m_settings.AnnounceOn);
    QFormLayout &mail = *pageLayout::rowsOf(m_mailServer);
    addChoice(mail, "comMailSecurity", tr("Se&curity:"), m_settings.MailSecurity,
              {tr("None (port 25)"), tr("STARTTLS (port 587)"), tr("TLS (port 465)")});
    addPort(mail);
    addUser(mail);
}

void NetworkGroups::setSettings(const clsNetworkSettings &settings)
{
    m_settings = settings;
    for (const auto &fill : m_fill)
        fill();
}

void NetworkGroups::setDefaults()
{
    clsNetworkSettings settings;
    settings.BlockedSenders = m_settings.BlockedSenders;
    setSettings(settings);
}

/// The values are told in the order of the enumeration.
template <class Value>
void NetworkGroups::addChoice(QFormLayout &rows, const char *name, const QString &caption, Value &field,
                              const QStringList &values)
{
    auto *box = new QComboBox(rows.parentWidget());
    box->setObjectName(QLatin1String(name));
    box->addItems(values);
    rows.addRow(caption, box);
    connect(box, &QComboBox::activated, this, [&field](int index) { field = static_cast<Value>(index); });
    m_fill.emplace_back([box, &field] { box->setCurrentIndex(static_cast<int>(field)); });
}

void NetworkGroups::addSwitch(QFormLayout &rows, const char *name, const QString &caption, bool &field)
{
    auto *row = new CheckRow(QLatin1String(name), caption, rows.parentWidget());
    rows.addRow(QString(), row);
    connect(row->box(), &QCheckBox::toggled, this, [&field](bool on) { field = on; });
    m_fill.emplace_back([row, &field] { row->box()->setChecked(field); });
}

void NetworkGroups::addBlocked(QFormLayout &rows)
{
    auto *box = new QLineEdit(rows.parentWidget());
    box->setObjectName(QStringLiteral("txtBlockedSenders"));
    box->setPlaceholderText(tr("Addresses, with commas between"));
    rows.addRow(tr("Bloc&ked senders:"), box);
    connect(box, &QLineEdit::textEdited, this, [this](const QString &text) {
        static const QRegularExpression gaps(QStringLiteral("[\\s,;]+"));
        m_settings.BlockedSenders = text.split(gaps, Qt::SkipEmptyParts);
    });
    m_fill.emplace_back([this, box] { box->setText(m_settings.BlockedSenders.join(QStringLiteral(", "))); });
}

void NetworkGroups::addPort(QFormLayout &rows)
{
    auto *box = new NumberBox(QStringLiteral("txtMailPort"), pageLayout::toPort, rows.parentWidget());
    box->setFixedWidth(pageLayout::NumberWidth);
    rows.addRow(tr("&Port:"), box);
    rows.addRow(QString(), pageLayout::hint(tr("0 is the port that is usual for the security."), rows.parentWidget()));
    connect(box, &NumberBox::valueChanged, this,
            [this](double port) { m_settings.MailPort = static_cast<qint32>(port); });
    m_fill.emplace_back([this, box] { box->setValue(m_settings.MailPort); });
}

void NetworkGroups::addUser(QFormLayout &rows)
{
    auto *box = new QLineEdit(rows.parentWidget());
    box->setObjectName(QStringLiteral("txtMailUser"));
    rows.addRow(tr("User &name:"), box);
    connect(box, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_settings.MailUser = textFile::flattened(text); });
    m_fill.emplace_back([this, box] { box->setText(m_settings.MailUser); });
}
