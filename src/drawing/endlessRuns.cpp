// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/endlessRuns.h"

namespace endlessRuns
{
namespace
{

/// Lines end at blanks, and between the characters of scripts that are written without any.
bool breaksRun(QChar c)
{
    constexpr char16_t FirstIdeograph = 0x2E80;
    constexpr char16_t LastIdeograph = 0xD7A3;
    return c.isSpace() || (c >= QChar(FirstIdeograph) && c <= QChar(LastIdeograph));
}

} // namespace

bool isIn(QStringView text)
{
    qsizetype run = 0;
    for (const QChar c : text) {
        run = breaksRun(c) ? 0 : run + 1;
        if (run > Longest)
            return true;
    }
    return false;
}

} // namespace endlessRuns
