// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <vector>

/// A window in which notes live: a note on the desktop holds one, the NoteStack many. What the program does with all
/// notes it does through this, so that no window's header names another. Notes are named by their tags; a tag that is
/// not the holder's is passed over.
class NoteHolder
{
public:
    virtual ~NoteHolder() = default;

    /// In the order in which they are shown.
    virtual std::vector<qint32> tags() const = 0;
    /// The record of the note with this tag; null when it is not here.
    virtual clsNoteProps *recordOf(qint32 tag) = 0;

    /// The record of one of its notes as it would be if every edit ended now; nothing ends. Reads only: it works
    /// without a display too.
    virtual clsNoteProps recordNow(qint32 tag) = 0;
    /// Takes what is not in the records yet, above all what is being typed, into them. The editors stay as they are.
    /// Reads only: it works without a display too.
    virtual void updateRecords() = 0;
    /// Ends the edits that are under way and takes what was typed.
    virtual void commitEditing() = 0;
    /// Another program became active.
    virtual void TextLostFocus() = 0;
    virtual void ResetAlarms() = 0;
    /// Somebody has changed that record: show it, and arm its alarm, anew.
    virtual void recordChanged(qint32 tag) = 0;
    /// Moves a note from the desktop into the NoteStack or back, whichever it is not.
    virtual void moveAway(qint32 tag) = 0;
};

/// Whether a note comes into a window locked: as its record asks for, or because it was where it comes from.
enum class Lid
{
    AsRecorded,
    Shut
};

/// The NoteStack as the other windows know it, besides being a holder of notes.
class StackHolder
{
public:
    virtual ~StackHolder() = default;

    /// Makes the record the new last tab and chooses it; the result is its index, counted from 0.
    virtual int AddANote(const clsNoteProps &note, Lid lid = Lid::AsRecorded) = 0;
    /// Moves all notes to the desktop, with a progress window that can stop it.
    virtual void TransferAllToDesktop() = 0;
    /// Shows the window and brings it to the front.
    virtual void showStack() = 0;
    /// Puts its notes into that order and shows the note with that tag; notes that are not in the order come last.
    virtual void arrange(const std::vector<qint32> &order, qint32 shown) = 0;
    /// The data file was written: keeps the order of the tabs beside it.
    virtual void keepOrder() = 0;
};
