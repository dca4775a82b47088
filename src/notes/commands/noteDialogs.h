// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/NoteMenu.h"

class Program;
class QWidget;

/// The dialogs of one note. The note is named by its tag: while a dialog is open the note may move between desktop and
/// NoteStack, or go; the result reaches it wherever it lives then, and is dropped when it is gone.
namespace noteDialogs
{

/// Captions that differ between the homes of a note, with the title for %1; to be translated in the context
/// "noteDialogs".
struct Captions
{
    const char *send;
    const char *email;
};

struct NoteDialog
{
    NoteCommand command;
    const char *failure; ///< Said when the password of a read-only note was wrong.
    void (*open)(Program &program, qint32 tag, QWidget *owner, const Captions &captions);
};

/// Null for a command that opens none.
const NoteDialog *find(NoteCommand command);
QString failure(const NoteDialog &dialog);

} // namespace noteDialogs
