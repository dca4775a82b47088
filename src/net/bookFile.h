// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// One alias of a book file.
struct BookLine
{
    QString alias;     ///< Without blanks.
    QString addresses; ///< Parted by commas.

    bool operator==(const BookLine &) const = default;
};

/// The file of either book. A line that begins with "alias" holds that word, a separator, the name of an alias up to
/// the first blank and its list of addresses; other lines are comments. The text ends at the first 0 byte. Characters
/// are single bytes. A file that somebody has written as UTF-8, behind its mark, is read as that and stays it while it
/// has characters that are no single bytes.
namespace bookFile
{

QList<BookLine> parse(const QByteArray &bytes);
/// Aliases without addresses are left out; blanks, line breaks and NULs that would tear a line are made good.
QByteArray build(const QList<BookLine> &lines);

inline constexpr qint64 MaximumBytes = 64 * 1024 * 1024; ///< Larger files count as unreadable.

/// A missing or unreadable file is an empty book.
QList<BookLine> load(const QString &path);
/// The file is UTF-8 behind its mark; it stays that as long as it needs it.
bool isMarked(const QString &path);
/// Replaces the file as a whole; the error is the reason, the file is as it was then. A file that could not be read is
/// moved aside.
Outcome<Done, QString> save(const QString &path, const QList<BookLine> &lines);

} // namespace bookFile
