// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QString>

#include <functional>
#include <vector>

class NoteHolder;
class Program;

/// Saving of notes, one or all, and moving of all. A note is saved when its `SaveTag` is 1; what is in the image of
/// the data file but not on the disk, because a write failed, is written by the next save.
namespace modForms
{

/// The record is not on the disk as it is. The one place where `SaveTag` is set.
void markChanged(Program &program, clsNoteProps &note);
/// Something is not on the disk as it is.
bool hasUnsavedNotes(const Program &program);
/// The notes that are not on the disk as they are.
std::vector<qint32> unsavedTags(const Program &program);

/// Writes a note into the data file when it has changed. A failure leaves it marked changed and is told once.
void saveNote(Program &program, clsNoteProps &note);
/// Takes a note out of the data file.
void removeNote(Program &program, const clsNoteProps &note);
/// Saves every note that has changed, with one write of the file; false when there is none at all. What is being typed
/// is saved too, and goes on being typed.
bool SaveAllNotes(Program &program);
/// The same, with a progress window that can stop it.
bool SaveAllWithProgress(Program &program);
/// Writes what is not on the disk without the help of any window, and tells nobody.
void rescueNotes(Program &program);

/// Moves every note of the desktop into the NoteStack, with a progress window that can stop it.
void TransferAllToNoteStack(Program &program);
/// Moves notes one by one, with a progress window that can stop it and one write of the data file at the end.
void moveAll(Program &program, const QString &text, const std::vector<qint32> &tags,
             const std::function<void(qint32)> &move);

} // namespace modForms
