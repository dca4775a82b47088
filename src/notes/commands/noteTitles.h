// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QFont>

class Program;
class QWidget;

/// What is done with a note's title wherever the note lives.
namespace noteTitles
{

/// The title, or what stands for one where there is none.
QString title(const clsNoteProps &note);
/// Short enough for a sentence.
QString shortTitle(const clsNoteProps &note, const QFont &font);
/// Short enough for the password prompt, with so many design twips to spare.
QString promptTitle(const clsNoteProps &note, int reserve);
/// Twips that the prompt of an edit of the title spares.
inline constexpr int PromptReserve = 30;
/// Takes what was typed. False for a text of blanks: the title stays, and where `insist` is true a box says why; the
/// note may be gone when this returns.
bool take(Program &program, clsNoteProps &note, const QString &typed, bool insist, QWidget *owner);
/// Says that a title cannot be empty.
void tellBlank(Program &program, QWidget *owner);
/// Asks whether the note is to be deleted.
bool confirmDeletion(Program &program, const clsNoteProps &note, QWidget *owner);

} // namespace noteTitles
