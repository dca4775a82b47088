// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmNewPwd.h"

frmNewPwd::frmNewPwd(Program &program, QWidget *owner)
    : NewPasswordDialog(program, u"frmNewPwd", tr("Enter New Password"), owner)
{
    addNewPasswordBoxes(tr("&Password:"), tr("&Re-Enter Password:"));
    addButtons();
}
