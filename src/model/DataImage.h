// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QByteArray>
#include <QString>

#include <deque>
#include <vector>

/// The data file in memory, as a list of records rather than as bytes, so that saving a note moves no other.
/// Serialised, its directory runs from the newest record to the oldest and its records the other way.
class DataImage
{
public:
    static constexpr qint64 MaximumLength = 0x7FFFFFFF;
    static constexpr qsizetype HeaderLength = 8;
    static constexpr qsizetype EntryLength = 12;

    /// Makes the record the newest, in place of the note's earlier one. The value tells whether anything changed; an
    /// image that would grow past MaximumLength is refused and stays as it was.
    Outcome<bool, QString> put(qint32 tag, const QByteArray &record);
    /// False when there is no such record.
    bool remove(qint32 tag);
    /// Takes over the record of a restored note, older than those taken over before it. False when there is no room.
    bool keepLoaded(qint32 tag, const QByteArray &record);
    /// Keeps a record that has no live note, older than all others so far. False when there is no room.
    bool keepForeign(const QByteArray &record);
    void clear();

    /// Notes whose record is another one in that image, or not in it.
    std::vector<qint32> tagsNotIn(const DataImage &other) const;

    /// The note's record as it is in the image; empty when there is none.
    QByteArray recordOf(qint32 tag) const;
    /// Tells the note's record from others across starts; empty when there is none.
    QString keyOf(qint32 tag) const;

    qint32 ImageLength() const;
    qint32 ImageRecordCount() const;
    /// Empty when there are no records.
    QByteArray bytes() const;

private:
    struct Entry
    {
        qint32 tag;
        QByteArray record;
        mutable QByteArray digest = {}; ///< Of the record, once it was asked for.
    };

    std::deque<Entry>::iterator find(qint32 tag);
    std::deque<Entry>::const_iterator find(qint32 tag) const;
    bool fits(qint64 more) const;

    std::deque<Entry> m_live;     ///< Oldest first.
    std::vector<Entry> m_foreign; ///< Newest first; all are older than the live ones and carry tag 0.
    qint64 m_length = HeaderLength;
};
