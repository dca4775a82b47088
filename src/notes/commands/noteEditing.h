// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

class NoteBody;
class Program;
class QWidget;

/// Editing and pasting of a note's text wherever the note lives.
namespace noteEditing
{

/// Asks what must be asked before the text is edited; false, after a box, when it may not or cannot be. The note may
/// be gone when this returns.
bool mayEdit(Program &program, const clsNoteProps &note, QWidget *owner);
/// Puts the clipboard's text in the place of the note's, undoable in the next edit. Nothing happens where the
/// clipboard holds no text or the note is read-only.
void paste(Program &program, clsNoteProps &note, NoteBody &body);

/// Says that a text cannot be pasted into one that is being edited.
void tellUnpastable(Program &program, QWidget *owner);

} // namespace noteEditing
