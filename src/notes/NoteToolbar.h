// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/NoteLayout.h"
#include "notes/commands/NoteMenu.h"
#include "notes/parts/ButtonStrip.h"

#include <array>

/// The toolbar of a desktop note.
class NoteToolbar final : public ButtonStrip
{
    Q_OBJECT

public:
    /// In the order in which the buttons stand.
    static constexpr std::array Commands{NoteCommand::Help, NoteCommand::Settings, NoteCommand::Email,
                                         NoteCommand::Send, NoteCommand::Alarm,    NoteCommand::Password};

    NoteToolbar(const Pictures &pictures, QWidget *note);

    void layOut(const NoteLayout &layout);
    void setDate(const QString &date);
    void setEditing(bool editing);
    /// The alarm and password buttons tell the note's state.
    void UpdateToolbarIcons(const clsNoteProps &note);

private:
    PictureButton &button(NoteCommand command);

    QString m_date;
};
