// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"

/// Tells what the program is and leads to the credits.
class frmAbout final : public ModalDialog
{
    Q_OBJECT

public:
    frmAbout(Program &program, QWidget *owner);

private:
    QWidget *makeHead();
    QWidget *makeButtons();
    void showCredits();
};
