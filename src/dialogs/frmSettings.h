// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/TabbedDialog.h"
#include "model/clsNoteProps.h"
#include "model/clsSettingsProps.h"

class AlarmEditor;
class AppearancePage;
class PasswordProtection;

/// Everything about one note but its text and place. Works on its own record; the note gets it from SettingsResult
/// alone.
class frmSettings final : public TabbedDialog
{
    Q_OBJECT

public:
    frmSettings(Program &program, QWidget *owner);
    ~frmSettings() override;

    /// Writes what was changed into the note, which may have changed meanwhile itself, and marks it changed when OK was
    /// chosen; tells whether it was. Applying them to the note's window is the caller's business.
    bool SettingsResult(clsNoteProps &note);
    void Initialize(const clsNoteProps &note);

protected:
    std::optional<Flaw> findFlaw() override;

private:
    clsSettingsProps m_opened; ///< As they were shown first.
    clsSettingsProps m_settings;
    AppearancePage *m_appearance;
    PasswordProtection *m_protection;
    AlarmEditor *m_alarm;
};
