// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <optional>
#include <vector>

/// Where a note of a copy stands today.
enum class Standing
{
    Gone,
    Changed, ///< Its title or its text.
    Same
};

/// A note of a copy beside the notes of today.
struct KeptNote
{
    clsNoteProps note;
    Standing standing = Standing::Gone;
    /// What shows its text, where the note, or what has become of it, is locked.
    std::optional<QString> password{};
    bool isChosen = false; ///< To be brought back.

    bool isCovered() const { return password.has_value(); }
    /// It comes back as covered as it is here, so that its password is not asked for.
    bool comesBackLocked() const;
};

/// A note of today; the record is the window's.
struct PresentNote
{
    const clsNoteProps *record;
    bool isLocked; ///< It shows its overlay.
};

namespace keptNotes
{

/// Each with the note of today that it most likely is: the same date of creation, title and text, or two of these, or
/// the date alone; none stands for two. What differs comes first, else the order stays.
std::vector<KeptNote> compared(std::vector<clsNoteProps> kept, const std::vector<PresentNote> &present);

} // namespace keptNotes
