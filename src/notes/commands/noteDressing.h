// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

class NoteBody;
class Program;
class QWidget;

/// What is read from a note's record to show it, with the boxes about files that are missing.
namespace noteDressing
{

/// Puts the record's picture into the body. A missing file is told and switched off in the record, one that cannot be
/// read is told and left out. Events run during the box: the note may be gone when this returns.
void dressPicture(Program &program, clsNoteProps &note, NoteBody &body, QWidget *owner);
/// A missing sound file is told; the alarm then only flashes.
void checkSound(Program &program, clsNoteProps &note, QWidget *owner);

} // namespace noteDressing
