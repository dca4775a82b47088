// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class LiveNote;
class NoteAction;
class QKeyEvent;

/// What the keys do on a note that is looked at, the same in both homes.
namespace noteKeys
{

/// Carries out what the key commands: Enter and whatever writes begin to edit the text. False when it is no key of a
/// note. Boxes may have been open: the note may be gone when this returns.
bool press(const QKeyEvent &key, const LiveNote &note, const NoteAction &action);

} // namespace noteKeys
