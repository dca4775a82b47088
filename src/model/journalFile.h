// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QByteArray>

#include <vector>

/// One note that is ahead of the data file.
struct JournalEntry
{
    QByteArray base; ///< journalFile::digestOf its record in the data file; empty for a note that has none there.
    QByteArray record;

    bool operator==(const JournalEntry &) const = default;
};

/// All that the data file has not.
struct Journal
{
    QByteArray file; ///< journalFile::digestOf the data file as it was then; empty when it could not be read.
    std::vector<JournalEntry> entries;

    bool operator==(const Journal &) const = default;
};

/// What can be wrong with the bytes of a journal.
enum class JournalFlaw
{
    Foreign, ///< Not a journal, or of a version that is not known.
    Cut,     ///< Something reaches past the end.
    Longer,  ///< Something lies behind the end.
    Changed, ///< The digest of the whole is another one.
    NoNote   ///< A record is none, or there is none.
};

/// The journal: the notes that are ahead of the data file, all in one file that is always replaced as a whole. Bytes
/// in, entries out; knows no disk.
namespace journalFile
{

constexpr qsizetype DigestLength = 16;
/// Bytes. Longer files are not read.
constexpr qint64 MaximumLength = 0x7FFFFFFF;

/// How the data file and its records are named.
QByteArray digestOf(QByteArrayView bytes);
/// No entries: no bytes.
QByteArray encode(const Journal &journal);
/// Nothing is taken from a flawed journal. No count or length makes the result larger than the bytes.
Outcome<Journal, JournalFlaw> decode(QByteArrayView bytes);

} // namespace journalFile
