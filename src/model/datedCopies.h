// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/ProgramPaths.h"
#include "model/wholeFile.h"

#include <QDateTime>
#include <QStringList>

#include <compare>
#include <optional>
#include <vector>

/// The data file as it was at earlier times, for a person to take notes back from: files like
/// "quillets-2026-11-22-081530.dat" in a folder of their own. Files there under other names are nobody's business here.
namespace datedCopies
{

/// Of all copies together. A larger data file is not copied.
inline constexpr qint64 MostBytes = 256 * 1024 * 1024;
/// Of one day; more come about only where something goes wrong at every save.
inline constexpr int MostOfToday = 24;

struct Copy
{
    QDate date{};
    QTime time{}; ///< Midnight where the name tells none.
    int number = 1;
    QString name{};
    qint64 size = 0; ///< Bytes; 0 where only the name is known.

    std::strong_ordering operator<=>(const Copy &other) const;
    bool operator==(const Copy &other) const = default;
};

/// Nothing for a name that is no copy's.
std::optional<Copy> fromName(const QString &name);

/// The copies that are kept no longer. Kept are today's and what bears a later date; and what was there at the
/// beginning of each of the last 7 days, 5 weeks and 13 months, those that run included: the first copy made in it,
/// or where there is none the last one before it, since equal copies are not made.
std::vector<Copy> outdated(std::vector<Copy> copies, QDate today);

/// The copies that have to go for the others to fit: first those of one day but its first and last, then the oldest;
/// never the newest.
std::vector<Copy> beyondBound(std::vector<Copy> copies, qint64 bound);

/// Newest first.
std::vector<Copy> list(const ProgramPaths &paths);
bool hasCopyOf(const ProgramPaths &paths, QDate day);
Outcome<QByteArray, ReadFailure> read(const ProgramPaths &paths, const Copy &copy);

/// Keeps these bytes as the copy of that moment unless they are those of the newest one; another copy of the same bytes
/// gives way. Then removes what is kept no longer. The error is for the log: nobody's work is stopped by it.
Outcome<Done, QString> keep(const ProgramPaths &paths, QByteArrayView bytes, const QDateTime &moment, QDate today);

} // namespace datedCopies
