// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

class Program;
class QWidget;

/// The dialogs of one note. The note is named by its tag: while a dialog is open the note may move between desktop and
/// NoteStack, or go; the result reaches it wherever it lives then, and is dropped when it is gone.
namespace noteDialogs
{

void openSettings(Program &program, qint32 tag, QWidget *owner);
void openAlarm(Program &program, qint32 tag, QWidget *owner);
void openPassword(Program &program, qint32 tag, QWidget *owner);

} // namespace noteDialogs
