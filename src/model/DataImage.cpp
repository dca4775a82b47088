// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"

#include "model/modStreams.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <algorithm>

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DataImage)
};

qint64 cost(const QByteArray &record)
{
    return DataImage::EntryLength + record.size();
}

} // namespace

Outcome<bool, QString> DataImage::put(qint32 tag, const QByteArray &record)
{
    const auto earlier = find(tag);
    const bool isKnown = earlier != m_live.end();
    if (isKnown && earlier + 1 == m_live.end() && earlier->record == record)
        return false;
    if (!fits(cost(record) - (isKnown ? cost(earlier->record) : 0)))
        return Failure{Texts::tr("The notes have become too large for one file.")};
    remove(tag);
    m_live.push_back({tag, record});
    m_length += cost(record);
    return true;
}

bool DataImage::remove(qint32 tag)
{
    const auto entry = find(tag);
    if (entry == m_live.end())
        return false;
    m_length -= cost(entry->record);
    m_live.erase(entry);
    return true;
}

bool DataImage::keepLoaded(qint32 tag, const QByteArray &record)
{
    if (!fits(cost(record)))
        return false;
    m_live.push_front({tag, record});
    m_length += cost(record);
    return true;
}

bool DataImage::keepForeign(const QByteArray &record)
{
    if (!fits(cost(record)))
        return false;
    m_foreign.push_back({0, record});
    m_length += cost(record);
    return true;
}

void DataImage::clear()
{
    *this = DataImage();
}

std::vector<qint32> DataImage::tagsNotIn(const DataImage &other) const
{
    std::vector<qint32> tags;
    for (const Entry &entry : m_live) {
        const auto there = other.find(entry.tag);
        if (there == other.m_live.end() || there->record != entry.record)
            tags.push_back(entry.tag);
    }
    return tags;
}

QByteArray DataImage::recordOf(qint32 tag) const
{
    const auto entry = find(tag);
    return entry == m_live.end() ? QByteArray() : entry->record;
}

QString DataImage::keyOf(qint32 tag) const
{
    const auto entry = find(tag);
    if (entry == m_live.end())
        return {};
    if (entry->digest.isEmpty())
        entry->digest = QCryptographicHash::hash(entry->record, QCryptographicHash::Md5).toHex();
    return QString::fromLatin1(entry->digest);
}

qint32 DataImage::ImageLength() const
{
    return ImageRecordCount() == 0 ? 0 : static_cast<qint32>(m_length);
}

qint32 DataImage::ImageRecordCount() const
{
    return static_cast<qint32>(m_live.size() + m_foreign.size());
}

QByteArray DataImage::bytes() const
{
    if (ImageRecordCount() == 0)
        return {};
    QByteArray file(m_length, Qt::Uninitialized);
    qsizetype position = 0;
    modStreams::WriteLong(ImageLength(), position, file);
    modStreams::WriteLong(ImageRecordCount(), position, file);
    qsizetype recordEnd = file.size();
    const auto place = [&](const Entry &entry) {
        recordEnd -= entry.record.size();
        modStreams::WriteLong(entry.tag, position, file);
        modStreams::WriteLong(static_cast<qint32>(recordEnd + 1), position, file); // Counted from 1.
        modStreams::WriteLong(static_cast<qint32>(entry.record.size()), position, file);
        std::copy(entry.record.begin(), entry.record.end(), file.begin() + recordEnd);
    };
    std::for_each(m_live.rbegin(), m_live.rend(), place);
    std::for_each(m_foreign.begin(), m_foreign.end(), place);
    return file;
}

std::deque<DataImage::Entry>::iterator DataImage::find(qint32 tag)
{
    return std::find_if(m_live.begin(), m_live.end(), [tag](const Entry &entry) { return entry.tag == tag; });
}

std::deque<DataImage::Entry>::const_iterator DataImage::find(qint32 tag) const
{
    return std::find_if(m_live.begin(), m_live.end(), [tag](const Entry &entry) { return entry.tag == tag; });
}

bool DataImage::fits(qint64 more) const
{
    return m_length + more <= MaximumLength;
}
