// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/windowState.h"

#include "model/wholeFile.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 MostBytes = 1024 * 1024;
constexpr QByteArrayView Section = "[NoteStack]";
constexpr QByteArrayView BytesBegin = "@ByteArray(";
constexpr QByteArrayView NoItems = "@Invalid()";

int digitOf(char c)
{
    const char *const digits = "0123456789abcdef";
    const char lower = c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
    const auto *found = std::find(digits, digits + 16, lower);
    return static_cast<int>(found - digits);
}

/// The byte that a run of digits stands for; any number of them belongs to it.
char takeNumber(QByteArrayView &rest, int base)
{
    unsigned value = 0;
    while (!rest.isEmpty() && digitOf(rest.front()) < base) {
        value = (value * unsigned(base) + unsigned(digitOf(rest.front()))) & 0xFF;
        rest = rest.sliced(1);
    }
    return static_cast<char>(value);
}

/// What stands for one byte behind a backslash.
char takeEscape(QByteArrayView &rest)
{
    constexpr QByteArrayView Names = "abfnrtv";
    constexpr QByteArrayView Values = "\a\b\f\n\r\t\v";
    if (rest.isEmpty())
        return '\\';
    if (digitOf(rest.front()) < 8)
        return takeNumber(rest, 8);
    const char name = rest.front();
    rest = rest.sliced(1);
    if (name == 'x')
        return takeNumber(rest, 16);
    const qsizetype known = Names.indexOf(name);
    return known < 0 ? name : Values[known];
}

/// The items of a value, which commas part outside of quotes.
QByteArrayList items(QByteArrayView value)
{
    QByteArrayList all(1);
    bool isQuoted = false;
    while (!value.isEmpty()) {
        const char c = value.front();
        value = value.sliced(1);
        if (c == '\\')
            all.last() += takeEscape(value);
        else if (c == '"')
            isQuoted = !isQuoted;
        else if (c == ',' && !isQuoted)
            all.append(QByteArray());
        else if (c != ' ' || isQuoted || !all.last().isEmpty())
            all.last() += c;
    }
    return all;
}

QByteArray bytesOf(const QByteArray &item)
{
    const bool isMarked = item.startsWith(BytesBegin) && item.endsWith(')');
    return isMarked ? item.sliced(BytesBegin.size()).chopped(1) : QByteArray();
}

/// Hexadecimal digits alone, or none of them: then somebody else has written there.
QStringList fingerprintsOf(QByteArrayView value)
{
    QStringList fingerprints;
    if (value == NoItems)
        return fingerprints;
    for (const QByteArray &item : items(value)) {
        if (item.isEmpty() || std::any_of(item.begin(), item.end(), [](char c) { return digitOf(c) >= 16; }))
            return {};
        fingerprints.append(QString::fromLatin1(item));
    }
    return fingerprints;
}

void take(WindowState &state, QByteArrayView key, QByteArrayView value)
{
    if (key == "geometry")
        state.geometry = bytesOf(items(value).join(','));
    if (key == "shown")
        state.isShown = value == "true";
    if (key == "order")
        state.order = fingerprintsOf(value);
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (key == "chosen" && isNumber)
        state.chosen = number;
}

QByteArray escaped(const QByteArray &bytes)
{
    QByteArray text;
    for (const char byte : bytes)
        text += "\\x" + QByteArray::number(static_cast<uchar>(byte), 16);
    return text;
}

} // namespace

WindowState windowState::parse(QByteArrayView text)
{
    WindowState state;
    bool isOurs = false;
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf('\n');
        const QByteArrayView line = text.first(end < 0 ? text.size() : end).trimmed();
        text = text.sliced(end < 0 ? text.size() : end + 1);
        if (line.startsWith('['))
            isOurs = line == Section;
        const qsizetype equals = line.indexOf('=');
        if (isOurs && equals > 0)
            take(state, line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
    }
    return state;
}

QByteArray windowState::text(const WindowState &state)
{
    const QByteArray order = state.order.isEmpty() ? NoItems.toByteArray() : state.order.join(u", "_s).toLatin1();
    return Section.toByteArray() + "\nchosen=" + QByteArray::number(state.chosen) +
           "\ngeometry=" + BytesBegin.toByteArray() + escaped(state.geometry) + ")\norder=" + order +
           "\nshown=" + (state.isShown ? "true" : "false") + '\n';
}

WindowState windowState::read(const QString &path)
{
    const auto file = wholeFile::read(path, MostBytes);
    return file ? parse(file.value()) : WindowState();
}

Outcome<Done, QString> windowState::write(const QString &path, const WindowState &state)
{
    return wholeFile::replaceReadable(path, text(state), MostBytes);
}
