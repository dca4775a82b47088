// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/NoteLayout.h"
#include "notes/parts/ButtonStrip.h"

/// The toolbar of a desktop note.
class NoteToolbar final : public ButtonStrip
{
    Q_OBJECT

public:
    /// In the order in which they stand.
    enum class Command
    {
        Help,
        Settings,
        Email,
        Send,
        Alarm,
        Password
    };

    NoteToolbar(const Pictures &pictures, QWidget *note);

    void layOut(const NoteLayout &layout);
    void setDate(const QString &date);
    void setEditing(bool editing);
    /// The alarm and password buttons tell the note's state.
    void UpdateToolbarIcons(const clsNoteProps &note);

private:
    QString m_date;
};
