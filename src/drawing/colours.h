// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// Colours as records keep them: a 32-bit value, either 0x00BBGGRR or, with the top bit set, 0x80000000 plus the
/// index of a system colour, which follows the desktop's palette.
namespace colours
{

/// Reference to the colour of texts.
inline constexpr auto SystemText = static_cast<qint32>(0x80000012);

/// Unknown system indices give the text colour of the palette.
QColor fromLong(qint32 value);
qint32 toLong(const QColor &colour);

/// The least contrast at which a text or a mark can be told from its ground.
inline constexpr double LeastContrast = 3.0;

/// Relative luminance, 0 to 1.
double luminance(const QColor &colour);
/// From 1 for equals to 21 for black and white.
double contrast(const QColor &a, const QColor &b);
QColor mixed(const QColor &from, const QColor &to, double share);
/// The colour, mixed towards the other until it can be seen on the ground.
QColor distinct(const QColor &colour, const QColor &ground, const QColor &towards);

} // namespace colours
