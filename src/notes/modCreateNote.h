// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/noteMoves.h"

class QWidget;

/// The one place where live notes come from.
namespace modCreateNote
{

inline constexpr qint32 MostNotes = 100; ///< Created or restored in one run.

/// Stamps the record and makes it a note on the desktop or in the NoteStack. At the limit a box is shown and nothing
/// is created; moving a note is never refused. The result is the note's tag, 0 when there is none.
qint32 CreateNote(Program &program, clsNoteProps record, Home home, NoteCreateMode mode, Lid lid = Lid::AsRecorded);
/// Moves a note to the desktop and writes it there at once: it changes its place in the data file in one step and is
/// never absent from it. One that was locked stays locked.
void moveToDesktop(Program &program, const clsNoteProps &record, Lid lid);
/// The box that is shown at the limit.
void tellLimit(Program &program, QWidget *owner = nullptr);
/// A fresh note from the program options.
void createNewNote(Program &program, Home home, QWidget *owner);

} // namespace modCreateNote
