// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/mailText.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

/// An encoded word has at most 75 characters; these bytes of text fit in.
constexpr qsizetype WordBytes = 45;
constexpr qsizetype BodyLine = 57; ///< Bytes that make 76 characters.
/// What may stand before the value on the header's first line.
constexpr qsizetype RoomForKey = 100;

bool isLineEnd(QChar c)
{
    return c == u'\n' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c == QChar(0x85);
}

bool isPlainCharacter(QChar c)
{
    return (c >= u' ' && c <= u'~') || c == u'\t';
}

/// As many characters as fit into one encoded word, never half of one.
qsizetype wordLength(QStringView text)
{
    qsizetype length = std::min(text.size(), WordBytes);
    while (length > 1 && (text.first(length).toUtf8().size() > WordBytes || text.at(length - 1).isHighSurrogate()))
        --length;
    return length;
}

} // namespace

QString mailText::cleaned(QString value)
{
    const auto breaks = [](QChar c) { return c == u'\r' || c.isNull() || isLineEnd(c); };
    return value.removeIf(breaks);
}

QByteArray mailText::envelopeAddress(const QString &address)
{
    QString clean = cleaned(address).trimmed();
    clean.remove(u'<').remove(u'>');
    const qsizetype at = clean.lastIndexOf(u'@');
    const QByteArray domain = QUrl::toAce(clean.sliced(at + 1));
    return at < 0 || domain.isEmpty() ? clean.toUtf8() : clean.first(at + 1).toUtf8() + domain;
}

QByteArray mailText::headerValue(const QString &value)
{
    const QString clean = cleaned(value);
    if (clean.size() <= LongestLine - RoomForKey && std::all_of(clean.begin(), clean.end(), isPlainCharacter))
        return clean.toLatin1();
    QByteArray words;
    for (QStringView left = clean; !left.isEmpty();) {
        const qsizetype length = wordLength(left);
        words += (words.isEmpty() ? "" : "\r\n ") + ("=?UTF-8?B?" + left.first(length).toUtf8().toBase64() + "?=");
        left = left.sliced(length);
    }
    return words;
}

QString mailText::withMailLineEnds(const QString &text)
{
    QString lines = text;
    lines.remove(QChar::Null).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    std::replace_if(lines.begin(), lines.end(), isLineEnd, QChar(u'\n'));
    return lines.replace(u'\n', u"\r\n"_s);
}

bool mailText::isPlain(QStringView text)
{
    qsizetype length = 0;
    for (const QChar c : text) {
        const bool isBreak = c == u'\r' || c == u'\n';
        length = isBreak ? 0 : length + 1;
        if (length > LongestLine || !(isBreak || isPlainCharacter(c)))
            return false;
    }
    return true;
}

QByteArray mailText::encodedBody(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    QByteArray lines;
    lines.reserve(bytes.size() / BodyLine * 78 + 78);
    for (qsizetype at = 0; at < bytes.size(); at += BodyLine)
        lines += bytes.mid(at, BodyLine).toBase64() + "\r\n";
    return lines;
}

QByteArray mailText::dotStuffed(const QByteArray &text)
{
    QByteArray stuffed = text;
    stuffed.replace("\r\n.", "\r\n..");
    return stuffed.startsWith('.') ? '.' + stuffed : stuffed;
}
