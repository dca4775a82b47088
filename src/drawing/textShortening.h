// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace textShortening
{

inline constexpr QLatin1String Dots("...");

/// The text itself where it is not wider than `maxWidth` pixels in the font; else its longest beginning that fits
/// with "..." behind it; "..." when not even that fits. Measures no more of a long text than could fit on a screen.
QString shortened(const QString &text, int maxWidth, const QFont &font);

/// Each control character and line end becomes a blank: for where the text is one line, or a tab would begin a column.
QString onOneLine(const QString &text);

} // namespace textShortening
