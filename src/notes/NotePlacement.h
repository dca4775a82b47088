// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Twips.h"
#include "model/clsNoteProps.h"

#include <QRect>

#include <vector>

/// Where a note opens. A pure function of what is stored and of the screens that are there.
struct NotePlacement
{
    QRect geometry;      ///< Pixels.
    bool stored = false; ///< The place is the stored one.

    /// Screens without task bars, in pixels; `cascadeFrom` is where notes without a place begin, `step` how many have
    /// opened there before. The stored place counts when it lies strictly inside the whole desktop and the title bar
    /// is on a screen. A place that does not count opens as near to it as one that does; no place at all opens in the
    /// cascade. Sizes that no note can have are brought into bounds, unusable ones give way to `fallback`.
    static NotePlacement of(const clsNoteProps &note, const Twips &twips, const std::vector<QRect> &screens,
                            QSize fallback, QPoint cascadeFrom, int step);
};
