// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/frmCredits.h"

#include "controls/dialogButtons.h"

#include <QGridLayout>
#include <QLabel>

namespace
{

constexpr int Margin = 24;

QLabel *label(const QString &text, QWidget *parent)
{
    auto *made = new QLabel(text, parent);
    made->setTextFormat(Qt::PlainText);
    made->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return made;
}

} // namespace

frmCredits::frmCredits(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmCredits", tr("Credits - Quillets"), owner)
{
    auto *rows = new QGridLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin * 3 / 4);
    rows->setHorizontalSpacing(Margin);
    rows->setVerticalSpacing(Margin / 2);
    const auto add = [&](const QString &caption, const QString &text) {
        const int row = rows->rowCount();
        rows->addWidget(label(caption, this), row, 0);
        rows->addWidget(label(text, this), row, 1);
    };
    add(tr("Program:"), tr("Written by the Quillets developers,\nfree under the MIT licence."));
    add(tr("Toolkit:"),
        tr("Qt %1, under the GNU Lesser General\nPublic License, version 3.").arg(QString::fromLatin1(qVersion())));
    add(tr("Pictures:"), tr("Drawn for Quillets, under its licence."));
    add(tr("Fonts:"), tr("Those of your desktop; none come with Quillets."));
    auto *buttons = dialogButtons::make(*this, {{QDialogButtonBox::Ok, "cmdOK"}});
    buttons->setContentsMargins(0, Margin / 2, 0, 0);
    rows->addWidget(buttons, rows->rowCount(), 0, 1, 2);
    rows->setSizeConstraint(QLayout::SetFixedSize);
}
