// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Program;

/// The journal: what is not saved is on the disk within half a second all the same, and a start after a crash brings
/// it back. Nothing runs while nothing changes.
namespace modForms
{

/// From now on until the windows are closed.
void keepJournal(Program &program);
/// Something changes, in a record or in what is being typed: the journal is written soon. Cheap enough for every key.
void armJournal(Program &program);
/// Brings the journal up to date and waits for the disk. What was saved drops out of it.
void settleJournal(Program &program);
/// To be said before the data file is written: should the program end between the two, no note comes twice.
void settleJournalAhead(Program &program);
/// The user gives up what is not saved.
void discardJournal(Program &program);
/// The windows are about to go; the journal stays as it is.
void endJournal(Program &program);

} // namespace modForms
