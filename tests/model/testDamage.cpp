// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"
#include "model/DataSurvey.h"
#include "model/modStreams.h"
#include "samples.h"

#include <QObject>
#include <QtEndian>

#include <limits>

namespace
{

constexpr int Plenty = 1000;

QByteArray patched(QByteArray file, qsizetype position, qint32 value)
{
    modStreams::WriteLong(value, position, file);
    return file;
}

qint32 entryNumber(const QByteArray &file, qsizetype entry, qsizetype offset)
{
    return qFromLittleEndian<qint32>(file.data() + DataImage::HeaderLength + entry * DataImage::EntryLength + offset);
}

/// What is not called damaged can be written again with nothing lost, and every entry is accounted for.
bool survives(const QByteArray &file, int room = Plenty)
{
    const DataSurvey survey = surveyDataFile(file, {}, room);
    DataImage image;
    qsizetype entry = 0;
    for (const DataSurvey::Note &found : survey.notes) {
        const QByteArray record = modStreams::EncodeNoteRecord(found.note);
        if (!survey.isDamaged && !image.keepLoaded(entryNumber(file, entry++, 0), record))
            return false;
    }
    const bool isComplete =
        survey.notes.size() + survey.beyondRoom.size() + size_t(survey.undecodable) == size_t(survey.recordCount);
    return isComplete && (survey.isDamaged || !survey.beyondRoom.empty() || image.bytes().size() == file.size());
}

} // namespace

class testDamage final : public QObject
{
    Q_OBJECT

private slots:
    void soundFilesAreSound_data();
    void soundFilesAreSound();
    void everyTruncation_data();
    void everyTruncation();
    void everyNumberPatched();
    void oneRecordNamedOften();
    void oneBadRecordCostsOneNote();
};

void testDamage::soundFilesAreSound_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("count");
    QTest::newRow("household") << sampleFile("household.dat") << 10;
    QTest::newRow("hundred") << sampleFile("hundred.dat") << 100;
    QTest::newRow("empty") << QByteArray() << 0;
}

void testDamage::soundFilesAreSound()
{
    QFETCH(QByteArray, file);
    QFETCH(int, count);
    const DataSurvey survey = surveyDataFile(file, {}, Plenty);
    QVERIFY(!survey.isDamaged && survives(file));
    QCOMPARE(int(survey.notes.size()), count);
    const DataSurvey narrow = surveyDataFile(file, {}, 4);
    QCOMPARE(int(narrow.notes.size() + narrow.beyondRoom.size()), count);
    QVERIFY(!narrow.isDamaged);
}

void testDamage::everyTruncation_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<qsizetype>("step");
    QTest::newRow("household") << sampleFile("household.dat") << qsizetype(1);
    QTest::newRow("hundred") << sampleFile("hundred.dat") << qsizetype(97);
}

void testDamage::everyTruncation()
{
    QFETCH(QByteArray, file);
    QFETCH(qsizetype, step);
    for (qsizetype keep = 1; keep < file.size(); keep += step) {
        QVERIFY2(survives(file.first(keep)), qPrintable(QString::number(keep)));
        QVERIFY2(surveyDataFile(file.first(keep), {}, Plenty).isDamaged, qPrintable(QString::number(keep)));
    }
    QVERIFY(surveyDataFile(file + '\0', {}, Plenty).isDamaged);
}

void testDamage::everyNumberPatched()
{
    const QByteArray file = sampleFile("household.dat");
    for (const qint32 value : {0, 1, -1, std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()})
        for (qsizetype position = 0; position + 4 <= file.size(); ++position) {
            QVERIFY2(survives(patched(file, position, value)), qPrintable(QString::number(position)));
            QVERIFY(survives(patched(file, position, value), 3));
        }
}

void testDamage::oneRecordNamedOften()
{
    constexpr int Entries = 200'000;
    const qint32 start = 9 + Entries * 12;
    const QByteArray record = modStreams::EncodeNoteRecord(taggedNote(0, QString(50'000, u'x')));
    QByteArray file(8, '\0');
    qsizetype position = 0;
    modStreams::WriteLong(start - 1 + qint32(record.size()), position, file);
    modStreams::WriteLong(Entries, position, file);
    for (int k = 0; k < Entries; ++k)
        for (const qint32 number : {0, start, qint32(record.size())})
            modStreams::WriteLong(number, position, file);
    file += record;
    const DataSurvey survey = surveyDataFile(file, {}, 100);
    QVERIFY(survey.isDamaged && survives(file, 100));
    QVERIFY(qsizetype(survey.notes.size()) * record.size() <= 2 * file.size());
    QVERIFY(qsizetype(survey.beyondRoom.size()) * record.size() <= file.size());
}

void testDamage::oneBadRecordCostsOneNote()
{
    const QByteArray file = sampleFile("household.dat");
    const qsizetype titleLength = entryNumber(file, 4, 4) - 1 + 70;
    const DataSurvey survey = surveyDataFile(patched(file, titleLength, -1), {}, Plenty);
    QCOMPARE(survey.undecodable, 1);
    QCOMPARE(survey.notes.size(), size_t(9));
    QCOMPARE(survey.notes[4].number, 6);
}

QTEST_APPLESS_MAIN(testDamage)
#include "testDamage.moc"
