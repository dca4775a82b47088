// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"
#include "model/DataSurvey.h"
#include "model/modStreams.h"
#include "samples.h"
#include "support/compareRow.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <limits>

namespace
{

constexpr int Plenty = 1000;

struct Record
{
    qint32 tag;
    QByteArray bytes;
};

QByteArray patched(QByteArray file, qsizetype position, qint32 value)
{
    modStreams::WriteLong(value, position, file);
    return file;
}

QByteArray longs(std::initializer_list<qsizetype> values)
{
    QByteArray bytes;
    for (const qsizetype value : values)
        bytes += patched(QByteArray(4, '\0'), 0, qint32(value));
    return bytes;
}

/// As the file holds them: the directory from the newest to the oldest, the records the other way, counted from 1.
QByteArray laidOut(const QList<Record> &oldestFirst)
{
    QByteArray directory;
    QByteArray records;
    for (const Record &record : oldestFirst) {
        directory.prepend(longs({record.tag, 9 + 12 * oldestFirst.size() + records.size(), record.bytes.size()}));
        records += record.bytes;
    }
    const QByteArray all = directory + records;
    return all.isEmpty() ? all : longs({8 + all.size(), oldestFirst.size()}) + all;
}

/// What is not called damaged can be written again with nothing lost, and every entry is accounted for.
bool survives(const QByteArray &file, int room = Plenty)
{
    const DataSurvey survey = surveyDataFile(file, {}, room);
    DataImage image;
    const char *entry = file.constData() + DataImage::HeaderLength;
    for (const DataSurvey::Note &found : survey.notes) {
        const QByteArray record = modStreams::EncodeNoteRecord(found.note);
        if (!survey.isDamaged && !image.keepLoaded(qFromLittleEndian<qint32>(entry), record))
            return false;
        entry += DataImage::EntryLength;
    }
    const bool isComplete =
        survey.notes.size() + survey.beyondRoom.size() + size_t(survey.undecodable) == size_t(survey.recordCount);
    return isComplete && (survey.isDamaged || !survey.beyondRoom.empty() || image.bytes().size() == file.size());
}

} // namespace

/// The bytes of the data file, written and read.
class testDataImage final : public QObject
{
    Q_OBJECT

private slots:
    void changesAtRandom()
    {
        QRandomGenerator random(1);
        DataImage image;
        QList<Record> expected;
        for (int turn = 0; turn < 2000; ++turn) {
            const Record record{random.bounded(1, 9), QByteArray(random.bounded(0, 40), char('a' + turn % 26))};
            expected.removeIf([&record](const Record &other) { return other.tag == record.tag; });
            if (random.bounded(3) > 0) {
                QVERIFY(image.put(record.tag, record.bytes).ok());
                expected.append(record);
            } else {
                image.remove(record.tag);
            }
            QCOMPARE(image.bytes(), laidOut(expected));
            QCOMPARE(image.ImageLength(), image.bytes().size());
        }
    }

    void everyTruncation()
    {
        const auto isDamaged = [](const QByteArray &file) { return surveyDataFile(file, {}, Plenty).isDamaged; };
        const auto row = [&isDamaged](const char *name, int count, qsizetype step) {
            const QByteArray file = TestHome::sample(name);
            const DataSurvey narrow = surveyDataFile(file, {}, 4);
            compareRow(name, int(narrow.notes.size() + narrow.beyondRoom.size()), count);
            QVERIFY2(survives(file) && !narrow.isDamaged && !isDamaged(file) && isDamaged(file + '\0'), name);
            for (qsizetype keep = 1; keep < file.size(); keep += step)
                QVERIFY2(survives(file.first(keep)) && isDamaged(file.first(keep)), qPrintable(QString::number(keep)));
        };
        row("household.dat", 10, 1);
        row("hundred.dat", 100, 97);
        QVERIFY(survives({}) && !isDamaged({}));
    }

    void everyNumberPatched()
    {
        const QByteArray file = TestHome::sample("household.dat");
        for (const qint32 value : {0, 1, -1, std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()})
            for (qsizetype position = 0; position + 4 <= file.size(); ++position) {
                const QByteArray bytes = patched(file, position, value);
                QVERIFY2(survives(bytes) && survives(bytes, 3), qPrintable(QString::number(position)));
            }
    }

    void oneRecordNamedOften()
    {
        constexpr int Entries = 200'000;
        constexpr qsizetype Start = 9 + Entries * 12;
        const QByteArray record = modStreams::EncodeNoteRecord(taggedNote(0, QString(50'000, u'x')));
        const QByteArray file =
            longs({Start - 1 + record.size(), Entries}) + longs({0, Start, record.size()}).repeated(Entries) + record;
        const DataSurvey survey = surveyDataFile(file, {}, 100);
        QVERIFY(survey.isDamaged && survives(file, 100));
        QVERIFY(qsizetype(survey.notes.size()) * record.size() <= 2 * file.size());
        QVERIFY(qsizetype(survey.beyondRoom.size()) * record.size() <= file.size());
    }
};

QTEST_APPLESS_MAIN(testDataImage)
#include "testDataImage.moc"
