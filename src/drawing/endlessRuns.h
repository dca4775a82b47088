// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// Runs of characters between which a line cannot be broken. A text box lays such a run out again and again, in the
/// square of its length and at every key: half a million characters keep it busy for 13 s. Lines that can be broken
/// cost little, however long they are.
namespace endlessRuns
{

/// Characters that are laid out within a tenth of a second.
inline constexpr qsizetype Longest = 40'000;

/// The text has a longer run than that.
bool isIn(QStringView text);

} // namespace endlessRuns
