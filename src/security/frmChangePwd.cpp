// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmChangePwd.h"

#include "security/secrets.h"

#include <QLineEdit>

frmChangePwd::frmChangePwd(Program &program, QWidget *owner)
    : NewPasswordDialog(program, u"frmChangePwd", tr("Change Password - Quillets"), owner),
      m_current(addBox(QStringLiteral("3"), tr("&Current Password:")))
{
    addNewPasswordBoxes(tr("&New Password:"), tr("&Re-Enter New Password:"));
    addButtons();
}

frmChangePwd::~frmChangePwd()
{
    secrets::wipe(m_stored);
}

void frmChangePwd::Initialize(const QString &storedPassword)
{
    m_stored = storedPassword;
}

std::optional<Flaw> frmChangePwd::findFlaw()
{
    if (m_current->text() == m_stored)
        return NewPasswordDialog::findFlaw();
    secrets::wipe(*m_current);
    return Flaw{{tr("Sorry.  The current password is not correct.  Please try again.")}, m_current};
}
