// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/textFile.h"

#include "model/textValues.h"

#include <algorithm>

namespace
{

constexpr QByteArrayView Utf8Mark = "\xEF\xBB\xBF";
constexpr char16_t FirstWideCharacter = 0x100;

/// Text in the 8-bit form must not begin like the other form.
bool isEightBit(const QString &text)
{
    return !text.startsWith(QLatin1StringView(Utf8Mark)) &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < FirstWideCharacter; });
}

bool isLineBreak(QChar c)
{
    return c == u'\r' || c == u'\n' || c == u'\0';
}

} // namespace

QByteArray textFile::encode(const QString &text)
{
    return isEightBit(text) ? text.toLatin1() : Utf8Mark.toByteArray() + text.toUtf8();
}

QString textFile::decode(const QByteArray &bytes)
{
    const qsizetype zero = bytes.indexOf('\0');
    const QByteArrayView used = zero < 0 ? QByteArrayView(bytes) : QByteArrayView(bytes).first(zero);
    QString text =
        used.startsWith(Utf8Mark) ? QString::fromUtf8(used.sliced(Utf8Mark.size())) : QString::fromLatin1(used);
    return text.replace(u'\t', u' ');
}

QString textFile::flattened(QString text)
{
    std::replace_if(text.begin(), text.end(), isLineBreak, QChar(u' '));
    return text;
}

QList<QStringView> textFile::lines(QStringView text)
{
    QList<QStringView> lines;
    while (!text.isEmpty()) {
        const auto end = std::find_if(text.begin(), text.end(), isLineBreak);
        const qsizetype length = end - text.begin();
        lines.append(textValues::trimmed(text.first(length)));
        text = text.sliced(std::min(length + 1, text.size()));
    }
    return lines;
}
