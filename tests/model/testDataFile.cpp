// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "model/wholeFile.h"
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
            duringLoad = modFileIO::WriteNoteRecord(state, taggedNote(1, {}), NoteFate::Keep).kind;
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
            static_cast<void>(modFileIO::WriteNoteRecord(state, note, NoteFate::Keep));
        return batch.end();
    }

    WriteResult save(qint32 tag, const QString &text)
    {
        return modFileIO::WriteNoteRecord(state, taggedNote(tag, text), NoteFate::Keep);
    }
    WriteResult remove(qint32 tag) { return modFileIO::WriteNoteRecord(state, taggedNote(tag, {}), NoteFate::Remove); }
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

Q_DECLARE_METATYPE(std::function<void(Runs &)>)

class testDataFile final : public QObject
{
    Q_OBJECT

private slots:
    void firstSavesAndDeletes();
    void startsOverAndOver();
    void batchWritesOnce();
    void moreNotesThanRoom();
    void damagedFiles_data();
    void damagedFiles();
    void emptyFile_data();
    void emptyFile();
    void othersFileIsKept();
    void unreadableFile_data();
    void unreadableFile();
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

/// One row for each file of tests/data/damaged: what is wrong with it stands in its name.
void testDataFile::damagedFiles_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("notRead");
    QTest::addColumn<bool>("isDamage"); // It is kept aside then, and so is the former backup.
    QTest::newRow("header-cut") << 0 << 0 << true;
    QTest::newRow("not-a-data-file") << 0 << 3 << true;
    QTest::newRow("count-negative") << 0 << 0 << true;
    QTest::newRow("count-of-two-thousand-million") << 10 << 271 << true;
    QTest::newRow("count-one-short") << 9 << 0 << true;
    QTest::newRow("count-zero-but-records") << 0 << 0 << true;
    QTest::newRow("total-wrong") << 10 << 0 << false;
    QTest::newRow("last-byte-missing") << 9 << 1 << true;
    QTest::newRow("bytes-behind-the-end") << 10 << 0 << true;
    QTest::newRow("start-before-the-file") << 9 << 1 << true;
    QTest::newRow("start-behind-the-file") << 9 << 1 << true;
    QTest::newRow("two-entries-for-one-record") << 10 << 0 << true;
    QTest::newRow("length-wrong") << 10 << 0 << false;
    QTest::newRow("text-of-negative-length") << 9 << 1 << true;
    QTest::newRow("text-of-odd-length") << 9 << 1 << true;
    QTest::newRow("text-longer-than-the-file") << 9 << 1 << true;
    QTest::newRow("true-as-one") << 10 << 0 << false;
    QTest::newRow("sector-of-zeros") << 10 << 0 << true;
    const QStringList files = QDir(QStringLiteral(TEST_DATA "/damaged")).entryList(QDir::Files);
    QCOMPARE(files.size(), 18);
}

void testDataFile::damagedFiles()
{
    QFETCH(int, shown);
    QFETCH(int, notRead);
    QFETCH(bool, isDamage);
    const QByteArray file = sampleFile(QByteArray("damaged/") + QTest::currentDataTag() + ".dat");
    Runs runs;
    setContents(runs.state.paths.DataFile, file);
    setContents(runs.state.paths.BackupFile, "what was good");
    runs.start();
    QCOMPARE(runs.report.restored, shown);
    QCOMPARE(runs.report.undecodable, notRead);
    QCOMPARE(runs.backup(), shown + notRead > 0 ? file : QByteArray());
    if (isDamage) {
        QCOMPARE(runs.report.keptAside.size(), 2);
        QVERIFY(runs.report.keptAside.first().endsWith(u"/quillets-2026-11-22-221530-damaged.dat"));
        QCOMPARE(contents(runs.report.keptAside.first()), file);
        QCOMPARE(contents(runs.report.keptAside.last()), QByteArray("what was good"));
    }
    QVERIFY(runs.saveAll().ok());
    runs.start();
    QCOMPARE(int(runs.notes.size()), shown);
    QVERIFY(runs.report.keptAside.isEmpty() && runs.report.undecodable == 0);
}

void testDataFile::emptyFile_data()
{
    QTest::addColumn<std::function<void(Runs &)>>("empty");
    QTest::addColumn<bool>("isLoss");
    const auto removeAll = [](Runs &runs) {
        for (const clsNoteProps &note : runs.notes)
            QVERIFY(runs.remove(note.Tag).kind == WriteResult::Kind::Written);
    };
    const auto cut = [](Runs &runs) { setContents(runs.state.paths.DataFile, {}); };
    const auto row = [](const char *name, std::function<void(Runs &)> empty, bool isLoss) {
        QTest::newRow(name) << empty << isLoss;
    };
    row("all notes deleted", removeAll, false);
    row(
        "file removed", [](Runs &runs) { QFile::remove(runs.state.paths.DataFile); }, true);
    row("file cut to nothing", cut, true);
    const auto newNote = [removeAll](Runs &runs) {
        removeAll(runs);
        QVERIFY(runs.save(99, u"new"_s).kind == WriteResult::Kind::Written);
    };
    row(
        "cut after a note that came after all others were deleted",
        [=](Runs &runs) {
            newNote(runs);
            cut(runs);
        },
        true);
}

/// What the user has deleted is not told as lost; what is gone in another way is, and does not cost the backup.
void testDataFile::emptyFile()
{
    QFETCH(std::function<void(Runs &)>, empty);
    QFETCH(bool, isLoss);
    Runs runs;
    setContents(runs.state.paths.DataFile, sampleFile("household.dat"));
    runs.start();
    empty(runs);
    const QByteArray backup = runs.backup();
    runs.start();
    QCOMPARE(runs.report.keptAside.size(), isLoss ? 1 : 0);
    if (isLoss)
        QCOMPARE(contents(runs.report.keptAside.first()), backup);
    QVERIFY(runs.notes.empty() && runs.report.problem.isEmpty());
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

void testDataFile::unreadableFile_data()
{
    QTest::addColumn<QByteArray>("comesBack");
    QTest::addColumn<int>("stored");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("its notes") << sampleFile("household.dat") << 10;
    QTest::newRow("damaged") << sampleFile("damaged/last-byte-missing.dat") << 9;
}

/// What could not be read at the start is not written over; when it can be read again it is stored with the rest.
void testDataFile::unreadableFile()
{
    QFETCH(QByteArray, comesBack);
    QFETCH(int, stored);
    Runs runs;
    setContents(runs.state.paths.BackupFile, "what was good");
    QFile::remove(runs.state.paths.DataFile);
    QDir().mkdir(runs.state.paths.DataFile);
    runs.start();
    QVERIFY(!runs.report.problem.isEmpty() && runs.report.problem == runs.state.readOnlyReason);
    for (const QString &text : {u"new"_s, u"newer"_s}) {
        const WriteResult refused = runs.save(1, text);
        QVERIFY(refused.kind == WriteResult::Kind::Failed && refused.reason == runs.report.problem);
        QVERIFY(runs.state.unsaved && QFileInfo(runs.state.paths.DataFile).isDir());
    }
    QCOMPARE(runs.backup(), QByteArray("what was good"));
    QDir().rmdir(runs.state.paths.DataFile);
    if (!comesBack.isEmpty())
        setContents(runs.state.paths.DataFile, comesBack);
    QVERIFY(modFileIO::flush(runs.state).ok() && runs.save(1, u"newest"_s).kind == WriteResult::Kind::Written);
    QVERIFY(runs.state.keptMeanwhile.isEmpty());
    QCOMPARE(runs.files().filter(u"damaged"_s).size(), stored == 9 ? 1 : 0);
    runs.start();
    QCOMPARE(int(runs.notes.size()), stored + 1);
    QCOMPARE(runs.notes[0].Data, u"newest"_s);
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
