// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/wholeFile.h"
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

/// A data folder and the runs of a program on it.
class Runs
{
public:
    Runs()
    {
        QDir(m_folder.path()).mkdir(u"Data"_s);
        start();
    }

    /// Starts anew; the notes of stack kind are refused, as by a program that has no place for them.
    void start(int room = 100, bool takesStacked = true)
    {
        state = DataFileState();
        state.paths = ProgramPaths::under(m_folder.path(), m_folder.path());
        notes.clear();
        progress.clear();
        const auto onRecord = [&](clsNoteProps &&note) {
            duringLoad = modFileIO::WriteNoteRecord(state, taggedNote(1, {}), true).kind;
            if (note.NoteStackOn && !takesStacked)
                return 0;
            note.Tag = int(notes.size()) + 1;
            notes.push_back(std::move(note));
            return notes.back().Tag;
        };
        report = modFileIO::LoadDataFile(
            state, {}, room, onRecord, [&](int k, int n) { progress << u"%1/%2"_s.arg(k).arg(n); }, {}, now);
    }

    Outcome<Done, QString> saveAll()
    {
        SaveBatch batch(state);
        for (const clsNoteProps &note : notes)
            static_cast<void>(modFileIO::WriteNoteRecord(state, note, true));
        return batch.end();
    }

    WriteResult save(qint32 tag, const QString &text)
    {
        return modFileIO::WriteNoteRecord(state, taggedNote(tag, text), true);
    }
    WriteResult remove(qint32 tag) { return modFileIO::WriteNoteRecord(state, taggedNote(tag, {}), false); }
    QByteArray dataFile() const { return contents(state.paths.DataFile); }
    QByteArray backup() const { return contents(state.paths.BackupFile); }
    QStringList texts() const
    {
        QStringList all;
        for (const clsNoteProps &note : notes)
            all << note.Data;
        return all;
    }
    QStringList files() const { return QDir(state.paths.DataFolder).entryList(QDir::Files); }

    DataFileState state;
    LoadReport report;
    std::vector<clsNoteProps> notes;
    QStringList progress;
    WriteResult::Kind duringLoad = WriteResult::Kind::Ignored;
    QDateTime now{QDate(2026, 11, 22), QTime(22, 15, 30)};

private:
    QTemporaryDir m_folder;
};

} // namespace

class testDataFile final : public QObject
{
    Q_OBJECT

private slots:
    void firstSavesAndDeletes();
    void startsOverAndOver();
    void batchWritesOnce();
    void moreNotesThanRoom();
    void keepsDamageAside_data();
    void keepsDamageAside();
    void emptyFileDoesNotCostTheBackup();
    void othersFileIsKept();
    void unreadableFileIsNeverWritten();
    void readOnlyFolder();
};

void testDataFile::firstSavesAndDeletes()
{
    Runs runs;
    QVERIFY(runs.dataFile().isEmpty() && runs.backup().isEmpty());
    QVERIFY(runs.save(0, u"template"_s).kind == WriteResult::Kind::Ignored);
    QVERIFY(runs.save(5, {}).kind == WriteResult::Kind::Written);
    QCOMPARE(runs.dataFile(), QByteArray::fromHex("7a00000001000000"
                                                  "050000001500000066000000") +
                                  QByteArray(102, '\0'));
    QCOMPARE(QFile::permissions(runs.state.paths.DataFile) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
    QVERIFY(runs.save(6, u"B"_s).kind == WriteResult::Kind::Written);
    QVERIFY(runs.save(5, u"A"_s).kind == WriteResult::Kind::Written);
    QVERIFY(runs.remove(9).kind == WriteResult::Kind::Written);
    QCOMPARE(runs.state.replacements, 3);
    runs.start();
    QCOMPARE(runs.texts(), QStringList({u"A"_s, u"B"_s}));
    QVERIFY(runs.remove(1).kind == WriteResult::Kind::Written);
    runs.start();
    QCOMPARE(runs.texts(), QStringList(u"B"_s));
    QVERIFY(runs.remove(1).kind == WriteResult::Kind::Written);
    QCOMPARE(runs.dataFile(), QByteArray());
}

void testDataFile::startsOverAndOver()
{
    Runs runs;
    setContents(runs.state.paths.DataFile, sampleFile("household.dat"));
    for (int turn = 0; turn < 4; ++turn) {
        const QByteArray before = runs.dataFile();
        runs.start();
        QCOMPARE(runs.backup(), before);
        QCOMPARE(runs.notes.size(), size_t(10));
        QCOMPARE(runs.progress.first() + runs.progress.last(), u"1/1010/10"_s);
        QVERIFY(runs.duringLoad == WriteResult::Kind::Deferred && !runs.state.LoadingData);
        QVERIFY(runs.saveAll().ok());
    }
    QCOMPARE(runs.dataFile(), sampleFile("household.dat"));
    // Notes that nobody takes stay stored.
    runs.start(100, false);
    QVERIFY(runs.saveAll().ok() && runs.notes.size() == 8);
    runs.start();
    QVERIFY(runs.notes.size() == 10 && runs.notes[8].NoteStackOn && runs.report.keptAside.isEmpty());
    QCOMPARE(runs.files(), QStringList({u"quillets.bak"_s, u"quillets.dat"_s}));
}

void testDataFile::batchWritesOnce()
{
    Runs runs;
    setContents(runs.state.paths.DataFile, sampleFile("hundred.dat"));
    runs.start();
    {
        const SaveBatch outer(runs.state);
        QVERIFY(runs.saveAll().ok());
        QVERIFY(runs.save(1, u"again"_s).kind == WriteResult::Kind::Batched);
        QCOMPARE(runs.state.replacements, 0);
    }
    QCOMPARE(runs.state.replacements, 1);
    QVERIFY(SaveBatch(runs.state).end().ok());
    QCOMPARE(runs.state.replacements, 1);
    QCOMPARE(runs.dataFile(), runs.state.image.bytes());
}

void testDataFile::moreNotesThanRoom()
{
    Runs runs;
    for (int k = 130; k >= 1; --k)
        runs.save(k, u"note %1"_s.arg(k));
    for (int turn = 0; turn < 3; ++turn) {
        runs.start();
        QCOMPARE(runs.report.restored, 100);
        QCOMPARE(runs.report.overLimit, 30);
        QVERIFY(runs.report.keptAside.isEmpty());
        QVERIFY(runs.saveAll().ok());
    }
    for (int tag = 1; tag <= 99; ++tag)
        runs.remove(tag);
    runs.start();
    QCOMPARE(runs.notes.size(), size_t(31));
    QCOMPARE(runs.notes[1].Data, u"note 101"_s);
    QCOMPARE(runs.notes[30].Data, u"note 130"_s);
}

void testDataFile::keepsDamageAside_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("restored");
    const QByteArray good = sampleFile("household.dat");
    QByteArray patched = good;
    QTest::newRow("seven bytes") << QByteArray("\x07\0\0\0\0\0\0", 7) << 0;
    QTest::newRow("random") << QByteArray::fromHex("9d01c2f700ab31ffee100203deadbeef41") << 0;
    QTest::newRow("bytes behind a zero count") << QByteArray::fromHex("0d00000000000000"
                                                                      "0102030405")
                                               << 0;
    QTest::newRow("a negative count") << patched.replace(4, 4, "\xFE\xFF\xFF\xFF") << 0;
    QTest::newRow("count too large") << patched.replace(4, 4, "\xFF\xFF\xFF\x7F") << 10;
    QTest::newRow("count too small") << patched.replace(4, 4, QByteArray("\x09\0\0\0", 4)) << 9;
    QTest::newRow("wrong total") << QByteArray(good).replace(0, 1, "\xFF") << 10;
    QTest::newRow("trailing byte") << good + 'x' << 10;
    QTest::newRow("overlapping entries") << QByteArray(good).replace(24, 4, good.mid(12, 4)) << 10;
    QTest::newRow("one record short") << good.chopped(1) << 9;
}

void testDataFile::keepsDamageAside()
{
    QFETCH(QByteArray, file);
    QFETCH(int, restored);
    Runs runs;
    setContents(runs.state.paths.DataFile, file);
    setContents(runs.state.paths.BackupFile, "what was good");
    runs.start();
    QVERIFY(runs.report.restored >= restored);
    QCOMPARE(runs.report.keptAside.size(), 2);
    QVERIFY(runs.report.keptAside.first().endsWith(u"/quillets-2026-11-22-221530-damaged.dat"));
    QCOMPARE(contents(runs.report.keptAside.first()), file);
    QCOMPARE(contents(runs.report.keptAside.last()), QByteArray("what was good"));
    QVERIFY(runs.saveAll().ok());
    const size_t count = runs.notes.size();
    runs.start();
    QCOMPARE(runs.notes.size(), count);
    QVERIFY(runs.report.keptAside.size() <= int(count == 0));
}

void testDataFile::emptyFileDoesNotCostTheBackup()
{
    Runs runs;
    setContents(runs.state.paths.BackupFile, sampleFile("household.dat"));
    QFile::remove(runs.state.paths.DataFile);
    runs.start();
    QCOMPARE(runs.report.keptAside.size(), 1);
    QCOMPARE(contents(runs.report.keptAside.first()), sampleFile("household.dat"));
    runs.start();
    QVERIFY(runs.report.keptAside.isEmpty() && runs.backup().isEmpty());
}

void testDataFile::othersFileIsKept()
{
    Runs runs;
    QVERIFY(runs.save(1, u"mine"_s).kind == WriteResult::Kind::Written);
    QVERIFY(runs.save(1, u"mine again"_s).kind == WriteResult::Kind::Written);
    // A time that changes alone, as file systems round it, is nobody's writing.
    QFile touched(runs.state.paths.DataFile);
    QVERIFY(touched.open(QIODevice::ReadWrite) &&
            touched.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFile::FileModificationTime));
    touched.close();
    QVERIFY(runs.save(1, u"mine as well"_s).kind == WriteResult::Kind::Written);
    QVERIFY(runs.state.keptMeanwhile.isEmpty());
    QFile file(runs.state.paths.DataFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("a file of another program") > 0);
    file.close();
    for (const QString &text : {u"mine too"_s, u"still mine"_s})
        QVERIFY(runs.save(1, text).kind == WriteResult::Kind::Written);
    QCOMPARE(runs.state.keptMeanwhile.size(), 1);
    QFile kept(runs.state.keptMeanwhile.constFirst());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("a file of another program"));
    QVERIFY(QDir(runs.state.paths.DataFolder).removeRecursively());
    QVERIFY(runs.save(1, u"in a new folder"_s).kind == WriteResult::Kind::Written);
    runs.start();
    QCOMPARE(runs.texts(), QStringList(u"in a new folder"_s));
}

void testDataFile::unreadableFileIsNeverWritten()
{
    Runs runs;
    setContents(runs.state.paths.BackupFile, "what was good");
    QFile::remove(runs.state.paths.DataFile);
    QDir().mkdir(runs.state.paths.DataFile);
    runs.start();
    QVERIFY(!runs.report.problem.isEmpty() && runs.report.problem == runs.state.readOnlyReason);
    QDir().rmdir(runs.state.paths.DataFile);
    const WriteResult refused = runs.save(1, u"text"_s);
    QVERIFY(refused.kind == WriteResult::Kind::Failed && refused.reason == runs.state.readOnlyReason);
    QVERIFY(!QFile::exists(runs.state.paths.DataFile));
    QCOMPARE(runs.backup(), QByteArray("what was good"));
}

void testDataFile::readOnlyFolder()
{
    if (geteuid() == 0)
        QSKIP("Nothing is read-only for root.");
    Runs runs;
    setContents(runs.state.paths.DataFile, sampleFile("household.dat").chopped(1));
    QFile::setPermissions(runs.state.paths.DataFolder, QFile::ReadOwner | QFile::ExeOwner);
    runs.start();
    QVERIFY(!runs.report.problem.isEmpty() && runs.state.asideOwedSince);
    QVERIFY(!runs.saveAll().ok());
    QFile::setPermissions(runs.state.paths.DataFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(modFileIO::flush(runs.state).ok());
    QVERIFY(runs.files().contains(u"quillets-2026-11-22-221530-damaged.dat"_s));
}

QTEST_APPLESS_MAIN(testDataFile)
#include "testDataFile.moc"
