// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmEnterPwd.h"

#include "security/secrets.h"

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

frmEnterPwd::~frmEnterPwd()
{
    wipeBoxes();
    secrets::wipe(m_typed);
}

void frmEnterPwd::Initialize(const QString &description)
{
    m_desc->setText(description);
}

bool frmEnterPwd::passOn(const QString &stored) const
{
    return m_accepted && m_typed == stored;
}

int frmEnterPwd::descriptionWidth()
{
    return LeastWidth - 2 * Margin;
}

QFont frmEnterPwd::descriptionFont()
{
    return QApplication::font("QLabel");
}

void frmEnterPwd::accept()
{
    m_typed = m_entry->text();
    m_accepted = true;
    PasswordDialog::accept();
}

void frmEnterPwd::reject()
{
    wipeBoxes();
    secrets::wipe(m_typed);
    m_accepted = false;
    PasswordDialog::reject();
}
