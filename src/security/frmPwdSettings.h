// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "model/clsNoteProps.h"
#include "model/clsPwdProps.h"

class PasswordProtection;

/// A note's password settings. Works on its own record; the note gets them from PwdResult alone.
class frmPwdSettings final : public ModalDialog
{
    Q_OBJECT

public:
    frmPwdSettings(Program &program, QWidget *owner);
    ~frmPwdSettings() override;

    void Initialize(const clsNoteProps &note);
    /// Writes what was changed into the note and marks it changed when OK was chosen; tells whether it was.
    bool PwdResult(clsNoteProps &note);

private:
    clsPwdProps m_opened; ///< As the note had them.
    clsPwdProps m_props;
    PasswordProtection *m_protection;
};
