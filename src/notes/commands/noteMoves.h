// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/NoteHolder.h"

class Program;

/// Where a note lives.
enum class Home
{
    Desktop,
    NoteStack
};

/// How a note came to be; decides what is stamped into its record.
enum class NoteCreateMode
{
    New = 0,
    Move = 1,
    Load = 2
};

/// How notes come into a home.
namespace noteMoves
{

/// Gives the record what its new home and the way there ask for: the tag of a new or restored note, the date of a new
/// one.
void stamp(Program &program, clsNoteProps &record, Home home, NoteCreateMode mode);
/// Makes the record a note of the NoteStack; the result is its tag.
qint32 intoNoteStack(Program &program, clsNoteProps record, NoteCreateMode mode, Lid lid);
/// The end of a move: the note is written at once.
void settle(Program &program, qint32 tag);

} // namespace noteMoves
