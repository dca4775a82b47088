// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"

/// Tells what the program is built with and under which terms it comes.
class frmCredits final : public ModalDialog
{
    Q_OBJECT

public:
    frmCredits(Program &program, QWidget *owner);
};
