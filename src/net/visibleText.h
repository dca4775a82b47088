// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Texts that strangers have written, as they may be drawn: nothing in them moves, hides or turns round what stands
/// beside it.
namespace visibleText
{

/// Control characters become blanks, those that override the direction of a text go.
QString line(const QString &text);
/// The same, but line ends stay.
QString lines(const QString &text);

} // namespace visibleText
