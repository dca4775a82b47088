// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Program;
struct DeletedNote;

/// Taking back that a note was deleted.
namespace deletions
{

/// Shows the line "Deleted. Undo" where the note was, for some seconds.
void offerUndo(Program &program, const DeletedNote &deleted);
/// The note comes back as it was, with its tag, to where it was, and is written at once.
void undo(Program &program, const DeletedNote &deleted);

} // namespace deletions
