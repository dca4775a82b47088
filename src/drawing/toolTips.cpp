// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/toolTips.h"

#include <QTextDocument>

namespace toolTips
{
namespace
{
constexpr qsizetype Longest = 1000;
}

QString plain(const QString &text)
{
    const QString tip = text.left(Longest);
    // What looks like markup would be taken for it.
    return Qt::mightBeRichText(tip) ? QStringLiteral("<qt>%1</qt>").arg(tip.toHtmlEscaped()) : tip;
}

} // namespace toolTips
