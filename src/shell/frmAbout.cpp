// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmAbout.h"

#include "controls/dialogButtons.h"
#include "forms/Program.h"
#include "forms/showModally.h"
#include "model/version.h"
#include "shell/frmCredits.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr int Margin = 24;
constexpr int LogoSide = 64;
constexpr int NamePoints = 24;

QLabel *label(const QString &name, const QString &text, QWidget *parent)
{
    auto *made = new QLabel(text, parent);
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    return made;
}

} // namespace

frmAbout::frmAbout(Program &program, QWidget *owner) : ModalDialog(program, u"frmAbout", tr("About Quillets"), owner)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin * 3 / 4);
    layout->setSpacing(Margin);
    layout->addWidget(makeHead());
    layout->addWidget(makeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget *frmAbout::makeHead()
{
    auto *head = new QWidget(this);
    auto *logo = label(QStringLiteral("imgQuilletsLogo"), {}, head);
    logo->setPixmap(program().pictures().programIcon().pixmap(QSize(LogoSide, LogoSide), devicePixelRatioF()));
    auto *name = label(QStringLiteral("lblName"), QStringLiteral("Quillets"), head);
    QFont serif(QStringLiteral("Times New Roman"), NamePoints, QFont::Bold);
    serif.setStyleHint(QFont::Serif);
    name->setFont(serif);
    auto *grid = new QGridLayout(head);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Margin);
    grid->setColumnStretch(1, 1);
    grid->addWidget(logo, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(label(QStringLiteral("lblVersion"), tr("Version %1 (August 2000)").arg(ProgramVersion), head), 1,
                    1);
    grid->addWidget(label(QStringLiteral("lblPlatforms"), tr("Platforms: MS Windows 95, 98, NT "), head), 2, 1);
    return head;
}

QWidget *frmAbout::makeButtons()
{
    auto *row = new QWidget(this);
    auto *credits = new QPushButton(tr("&Credits"), row);
    credits->setObjectName(QStringLiteral("cmdCredits"));
    connect(credits, &QPushButton::clicked, this, &frmAbout::showCredits);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(credits);
    layout->addStretch();
    layout->addWidget(dialogButtons::make(*this, {{QDialogButtonBox::Ok, "cmdOK"}}));
    return row;
}

void frmAbout::showCredits()
{
    const QPointer<frmCredits> credits = new frmCredits(program(), this);
    if (showModally(credits))
        credits->unload();
}
