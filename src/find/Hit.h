// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "search/FoldedText.h"

#include <QColor>

/// A note in which something was found, as the list shows it.
struct Hit
{
    qint32 tag = 0;
    QString title;
    QString line; ///< What stands around the place in the text; empty where only the title was meant.
    std::optional<TextPart> inTitle;
    std::optional<TextPart> inLine;
    std::optional<TextPart> inText;
    QColor paper;
    bool isInStack = false;
    bool isLocked = false;
};
