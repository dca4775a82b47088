// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/frmNote.h"

class Program;

/// The one place where live notes come from.
namespace modCreateNote
{

inline constexpr qint32 MostNotes = 100; ///< Created or restored in one run.

/// Stamps the record and makes it a note on the desktop or in the NoteStack. At the limit a box is shown and nothing
/// is created; moving a note is never refused. The result is the note's tag, 0 when there is none.
qint32 CreateNote(Program &program, clsNoteProps record, bool toNoteStack, NoteCreateMode mode);
/// Moves a note to the other place and writes it there at once; one that was locked stays locked.
void moveNote(Program &program, const clsNoteProps &record, bool toNoteStack, bool locked);
/// The box that is shown at the limit.
void tellLimit(Program &program, QWidget *owner = nullptr);
/// A fresh note from the program options, on the desktop or in the NoteStack.
void createNewNote(Program &program, bool toNoteStack, QWidget *owner);

} // namespace modCreateNote
