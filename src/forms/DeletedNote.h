// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QRect>

#include <vector>

/// A note that the user has just deleted, as it was, for taking the deletion back.
struct DeletedNote
{
    clsNoteProps record;
    std::vector<qint32> neighbours; ///< Tags of all notes of its window, its own among them, in their order.
    QRect place;                    ///< Of its window, on the screen.
};
