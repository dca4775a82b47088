// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/datedCopies.h"
#include "restore/keptNotes.h"

class Program;

/// What a dated copy holds, as far as it can be believed, beside the notes of today.
struct CopyReading
{
    std::vector<KeptNote> notes;
    int unread = 0; ///< Records that are damaged.
    int beyond = 0; ///< Sound ones that were too many.
    bool isDamaged = false;
    QString problem; ///< Not empty: the file could not be read at all.

    int count(Standing standing) const;
    /// Some note is gone or changed.
    bool differs() const { return count(Standing::Same) < static_cast<int>(notes.size()); }
    /// One line for a person: "2 gone, 1 changed".
    QString summary() const;
    /// What is wrong with the copy, for a person; empty when nothing is.
    QString flaw() const;
};

CopyReading readCopy(Program &program, const datedCopies::Copy &copy);
