// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/journalFile.h"

#include "model/modStreams.h"

#include <QCryptographicHash>

namespace
{

constexpr QByteArrayView Magic("Quillets journal");
constexpr qint32 Version = 1;
constexpr qsizetype LongLength = 4;
constexpr qsizetype FilePosition = Magic.size() + LongLength;
constexpr qsizetype CountPosition = FilePosition + journalFile::DigestLength;
constexpr qsizetype HeaderLength = CountPosition + LongLength;
constexpr qsizetype FrameHeaderLength = journalFile::DigestLength + LongLength;
constexpr qsizetype ShortestFile = HeaderLength + journalFile::DigestLength;

const QByteArray NoDigest(journalFile::DigestLength, '\0');

QByteArray fixed(const QByteArray &digest)
{
    return digest.isEmpty() ? NoDigest : digest;
}

/// The bytes must be there.
QByteArray digestAt(qsizetype position, QByteArrayView bytes)
{
    const QByteArrayView digest = bytes.sliced(position, journalFile::DigestLength);
    return digest == NoDigest ? QByteArray() : digest.toByteArray();
}

qsizetype lengthOf(const std::vector<JournalEntry> &entries)
{
    qsizetype length = ShortestFile;
    for (const JournalEntry &entry : entries)
        length += FrameHeaderLength + entry.record.size();
    return length;
}

void appendLong(qsizetype value, QByteArray &bytes)
{
    qsizetype position = bytes.size();
    modStreams::WriteLong(static_cast<qint32>(value), position, bytes);
}

/// The bytes must be there.
qint32 longAt(qsizetype position, QByteArrayView bytes)
{
    return modStreams::ReadLong(position, bytes).value();
}

bool isNote(QByteArrayView record)
{
    const auto length = modStreams::measureNoteRecord(record, 0);
    return length && length.value() == record.size();
}

/// Takes the first entry off the frames.
Outcome<JournalEntry, JournalFlaw> takeEntry(QByteArrayView &frames)
{
    if (frames.size() < FrameHeaderLength)
        return Failure{JournalFlaw::Cut};
    QByteArray base = digestAt(0, frames);
    const qint32 length = longAt(journalFile::DigestLength, frames);
    frames = frames.sliced(FrameHeaderLength);
    if (length < 0 || length > frames.size())
        return Failure{JournalFlaw::Cut};
    const QByteArrayView record = frames.first(length);
    frames = frames.sliced(length);
    if (!isNote(record))
        return Failure{JournalFlaw::NoNote};
    return JournalEntry{std::move(base), record.toByteArray()};
}

} // namespace

QByteArray journalFile::digestOf(QByteArrayView bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

QByteArray journalFile::encode(const Journal &journal)
{
    if (journal.entries.empty())
        return {};
    QByteArray bytes;
    bytes.reserve(lengthOf(journal.entries));
    bytes += Magic;
    appendLong(Version, bytes);
    bytes += fixed(journal.file);
    appendLong(static_cast<qsizetype>(journal.entries.size()), bytes);
    for (const JournalEntry &entry : journal.entries) {
        bytes += fixed(entry.base);
        appendLong(entry.record.size(), bytes);
        bytes += entry.record;
    }
    return bytes + digestOf(bytes);
}

Outcome<Journal, JournalFlaw> journalFile::decode(QByteArrayView bytes)
{
    Journal journal;
    if (bytes.isEmpty())
        return journal;
    if (bytes.size() < ShortestFile)
        return Failure{JournalFlaw::Cut};
    if (!bytes.startsWith(Magic) || longAt(Magic.size(), bytes) != Version)
        return Failure{JournalFlaw::Foreign};
    const QByteArrayView content = bytes.chopped(DigestLength);
    if (bytes.last(DigestLength) != digestOf(content))
        return Failure{JournalFlaw::Changed};
    journal.file = digestAt(FilePosition, bytes);
    QByteArrayView frames = content.sliced(HeaderLength);
    const qint32 count = longAt(CountPosition, bytes);
    if (count < 1)
        return Failure{JournalFlaw::NoNote};
    for (qint32 missing = count; missing > 0; --missing) {
        auto entry = takeEntry(frames);
        if (!entry)
            return Failure{entry.error()};
        journal.entries.push_back(std::move(entry).value());
    }
    if (!frames.isEmpty())
        return Failure{JournalFlaw::Longer};
    return journal;
}
