// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/bookFile.h"

#include "model/textFile.h"
#include "model/textValues.h"
#include "model/wholeFile.h"

#include <QFile>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr QStringView Keyword = u"alias";

bool isLineBreak(QChar c)
{
    return c == u'\r' || c == u'\n' || c == u'\0';
}

/// What begins with the word as a part of another word is a comment.
bool isSeparator(QChar c)
{
    return !c.isLetterOrNumber();
}

std::optional<BookLine> parseLine(QStringView line)
{
    if (!line.startsWith(Keyword) || line.size() == Keyword.size() || !isSeparator(line.at(Keyword.size())))
        return std::nullopt;
    const QStringView rest = textValues::trimmed(line.sliced(Keyword.size() + 1));
    const qsizetype blank = rest.indexOf(u' ');
    if (blank < 0)
        return std::nullopt;
    return BookLine{rest.first(blank).toString(), textValues::trimmed(rest.sliced(blank)).toString()};
}

QString soundAlias(QString alias)
{
    const auto tears = [](QChar c) { return c == u' ' || c == u'\t' || isLineBreak(c); };
    std::replace_if(alias.begin(), alias.end(), tears, QChar(u'_'));
    return alias;
}

} // namespace

QList<BookLine> bookFile::parse(const QByteArray &bytes)
{
    QList<BookLine> lines;
    const QString text = textFile::decode(bytes);
    for (auto from = text.begin(); from != text.end();) {
        const auto end = std::find_if(from, text.end(), isLineBreak);
        if (auto line = parseLine(QStringView(from, end)))
            lines.append(*std::move(line));
        from = end == text.end() ? end : end + 1;
    }
    return lines;
}

QByteArray bookFile::build(const QList<BookLine> &lines)
{
    QString text;
    for (const BookLine &line : lines) {
        const QString addresses = textFile::flattened(line.addresses).trimmed();
        if (!addresses.isEmpty() && !line.alias.isEmpty())
            text += u"alias %1 %2\r\n"_s.arg(soundAlias(line.alias), addresses);
    }
    return textFile::encode(text);
}

QList<BookLine> bookFile::load(const QString &path)
{
    const auto file = wholeFile::read(path, MaximumBytes);
    return file ? parse(file.value()) : QList<BookLine>();
}

bool bookFile::isMarked(const QString &path)
{
    constexpr QByteArrayView Mark("\xEF\xBB\xBF");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(Mark.size()) == Mark;
}

Outcome<Done, QString> bookFile::save(const QString &path, const QList<BookLine> &lines)
{
    return wholeFile::replaceReadable(path, build(lines), MaximumBytes);
}
