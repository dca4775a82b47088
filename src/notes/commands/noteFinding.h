// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class NoteBody;

/// Looking for a text inside one note.
namespace noteFinding
{

/// Marks the next place behind what is marked, or the first one behind the last. Nothing where there is none.
void showNext(NoteBody &body, const QString &text);
/// Marks the first place.
void showFirst(NoteBody &body, const QString &text);

} // namespace noteFinding
