// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsPwdProps.h"
#include "forms/Form.h"

#include <QDialog>

class PasswordProtection;
class Program;

/// A note's password settings. Works on its own record; the note gets them from PwdResult alone.
class frmPwdSettings final : public QDialog, public Form
{
    Q_OBJECT

public:
    frmPwdSettings(Program &program, QWidget *owner);
    ~frmPwdSettings() override;

    void Initialize(const clsNoteProps &note);
    /// Writes the settings into the note and marks it changed when OK was chosen; tells whether it was.
    bool PwdResult(clsNoteProps &note);

    QWidget *window() override { return this; }

private:
    Program &m_program;
    clsPwdProps m_props;
    PasswordProtection *m_protection;
};
