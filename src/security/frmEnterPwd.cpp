// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmEnterPwd.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

frmEnterPwd::frmEnterPwd(Program &program, QWidget *owner)
    : PasswordDialog(program, Name, tr("Enter Password"), owner),
      m_desc(addText(QStringLiteral("lblDesc"), tr("Password authentication.")))
{
    addText(QStringLiteral("lblPlease"), tr("Please enter your password to procede."));
    m_entry = addBox({}, tr("&Password:"));
    addButtons();
}

void frmEnterPwd::Initialize(const QString &description)
{
    m_desc->setText(description);
}

bool frmEnterPwd::passOn(const QString &stored) const
{
    return isAccepted() && m_entry->text() == stored;
}

int frmEnterPwd::descriptionWidth()
{
    return LeastWidth - 2 * Margin;
}

QFont frmEnterPwd::descriptionFont()
{
    return QApplication::font("QLabel");
}
