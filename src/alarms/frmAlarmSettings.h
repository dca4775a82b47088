// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"
#include "model/clsAlarmProps.h"
#include "model/clsNoteProps.h"

class AlarmEditor;

/// Lets the user set the alarm of one note. It works on a copy, which the caller takes back with AlarmResult; waiting
/// for the alarm is not its business.
class frmAlarmSettings final : public ModalDialog
{
    Q_OBJECT

public:
    frmAlarmSettings(Program &program, QWidget *owner);

    /// An alarm that is off is shown with the present date and time.
    void Initialize(const clsNoteProps &record);
    /// Writes what was changed into the record when OK was chosen, else changes nothing; tells which.
    bool AlarmResult(clsNoteProps &record) const;

protected:
    std::optional<Flaw> findFlaw() override;

private:
    clsAlarmProps m_opened; ///< As the note had it.
    clsAlarmProps m_alarm;
    AlarmEditor *m_editor;
};
