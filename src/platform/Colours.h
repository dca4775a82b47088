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

} // namespace colours
