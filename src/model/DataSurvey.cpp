// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataSurvey.h"

#include "model/DataImage.h"
#include "model/logs.h"
#include "model/modStreams.h"

#include <algorithm>

namespace
{

/// Entries may name one record many times. Notes may then take twice the size of the file, which lets a few strays be
/// shown beside all that is sound.
constexpr qsizetype NotesPerFileSize = 2;

constexpr QStringView TooMany = u"Too many entries name the same bytes.";

class Surveyor
{
public:
    Surveyor(QByteArrayView file, const clsNoteProps &noteTemplate, int room)
        : m_file(file), m_noteTemplate(noteTemplate), m_room(room), m_noteBytes(file.size() * NotesPerFileSize),
          m_keptBytes(file.size())
    {}

    DataSurvey run();

private:
    qint32 numberAt(qsizetype position) const;
    void readHeader();
    void readEntry(int index);
    void takeNote(int number, QByteArrayView record);
    void keepRecord(int number, QByteArrayView record);
    void passOver(int number, QStringView reason);
    void addExtent(qsizetype start, qsizetype length);
    bool isTiled();

    struct Extent
    {
        qsizetype start;
        qsizetype length;
    };

    const QByteArrayView m_file;
    const clsNoteProps &m_noteTemplate;
    const int m_room;
    qsizetype m_noteBytes; ///< That notes may still take.
    qsizetype m_keptBytes; ///< That records beyond the room may still take.
    std::vector<Extent> m_extents;
    qsizetype m_extentBytes = 0;
    DataSurvey m_survey;
};

DataSurvey Surveyor::run()
{
    if (m_file.isEmpty())
        return {};
    readHeader();
    for (int index = 0; index < m_survey.recordCount; ++index)
        readEntry(index);
    m_survey.isDamaged = m_survey.isDamaged || !isTiled();
    return std::move(m_survey);
}

qint32 Surveyor::numberAt(qsizetype position) const
{
    const auto number = modStreams::ReadLong(position, m_file);
    return number ? number.value() : 0;
}

void Surveyor::readHeader()
{
    const qsizetype available = std::max<qsizetype>(0, m_file.size() - DataImage::HeaderLength);
    const qint32 claimed = numberAt(4);
    m_survey.recordCount = static_cast<int>(std::clamp<qsizetype>(claimed, 0, available / DataImage::EntryLength));
    m_survey.isDamaged = claimed != m_survey.recordCount;
}

void Surveyor::readEntry(int index)
{
    const qsizetype entry = DataImage::HeaderLength + index * DataImage::EntryLength;
    const qsizetype start = qsizetype(numberAt(entry + 4)) - 1;
    const auto length = modStreams::measureNoteRecord(m_file, start);
    if (!length) {
        passOver(index + 1, toText(length.error()));
        return;
    }
    addExtent(start, length.value());
    const QByteArrayView record = m_file.sliced(start, length.value());
    if (qsizetype(m_survey.notes.size()) < m_room)
        takeNote(index + 1, record);
    else
        keepRecord(index + 1, record);
}

void Surveyor::takeNote(int number, QByteArrayView record)
{
    if (record.size() > m_noteBytes) {
        passOver(number, TooMany);
        return;
    }
    m_noteBytes -= record.size();
    auto decoded = modStreams::DecodeNoteRecord(record, 0, m_noteTemplate);
    if (!decoded) {
        passOver(number, toText(decoded.error()));
        return;
    }
    m_survey.notes.push_back({number, std::move(decoded).value().note, record, {}});
}

void Surveyor::keepRecord(int number, QByteArrayView record)
{
    if (record.size() > m_keptBytes) {
        passOver(number, TooMany);
        return;
    }
    m_keptBytes -= record.size();
    m_survey.beyondRoom.push_back(record);
}

void Surveyor::passOver(int number, QStringView reason)
{
    qCWarning(logs::files) << "Record" << number << "of" << m_survey.recordCount << "passed over:" << reason;
    ++m_survey.undecodable;
    m_survey.isDamaged = true;
}

/// Extents longer together than the file cannot tile it, so no more of them are gathered.
void Surveyor::addExtent(qsizetype start, qsizetype length)
{
    m_extentBytes += length;
    if (m_extentBytes <= m_file.size())
        m_extents.push_back({start, length});
    else
        m_survey.isDamaged = true;
}

/// Whether the records fill the file from the directory to its end, with no gap and no overlap.
bool Surveyor::isTiled()
{
    std::sort(m_extents.begin(), m_extents.end(), [](Extent a, Extent b) { return a.start < b.start; });
    qsizetype position = DataImage::HeaderLength + m_survey.recordCount * DataImage::EntryLength;
    for (const Extent &extent : m_extents) {
        if (extent.start != position)
            return false;
        position += extent.length;
    }
    return position == m_file.size();
}

} // namespace

DataSurvey surveyDataFile(QByteArrayView file, const clsNoteProps &noteTemplate, int room)
{
    return Surveyor(file, noteTemplate, room).run();
}

std::vector<QByteArrayView> DataSurvey::records() const
{
    std::vector<QByteArrayView> all;
    for (const Note &found : notes)
        all.push_back(found.record);
    all.insert(all.end(), beyondRoom.begin(), beyondRoom.end());
    return all;
}
