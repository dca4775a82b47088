// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/visibleText.h"

#include <QStringList>

#include <algorithm>

namespace
{

constexpr QStringView DirectionMarks = u"\u061C\u200E\u200F\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069";

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

} // namespace

QString visibleText::line(const QString &text)
{
    QString shown = text;
    shown.removeIf([](QChar c) { return DirectionMarks.contains(c); });
    std::replace_if(shown.begin(), shown.end(), isControl, QChar(u' '));
    return shown;
}

QString visibleText::lines(const QString &text)
{
    QStringList shown;
    for (const QString &each : text.split(u'\n'))
        shown.append(line(each));
    return shown.join(u'\n');
}
