// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "security/NewPasswordDialog.h"

/// Asks for the first password of a note.
class frmNewPwd final : public NewPasswordDialog
{
    Q_OBJECT

public:
    frmNewPwd(Program &program, QWidget *owner);
};
