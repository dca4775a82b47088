// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "Runs.h"
#include "support/rows.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

/// Starting with the data file and saving into it, whatever is wrong with it.
class testDataFile final : public QObject
{
    Q_OBJECT

private slots:
    void firstSavesAndDeletes()
    {
        Runs runs;
        QVERIFY(runs.dataFile().isEmpty() && runs.backup().isEmpty());
        QVERIFY(runs.save(0, u"template"_s).kind == WriteResult::Kind::Ignored);
        QVERIFY(runs.save(5, {}).kind == WriteResult::Kind::Written);
        QCOMPARE(runs.dataFile(), QByteArray::fromHex("7a00000001000000"
                                                      "050000001500000066000000") +
                                      QByteArray(102, '\0'));
        QCOMPARE(QFile::permissions(runs.paths.DataFile) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        for (const WriteResult &result : {runs.save(6, u"B"_s), runs.save(5, u"A"_s), runs.remove(9)})
            QVERIFY(result.kind == WriteResult::Kind::Written);
        QCOMPARE(runs.state.replacements, 3);
        runs.start();
        QCOMPARE(runs.texts(), u"A B"_s);
        QVERIFY(runs.remove(1).kind == WriteResult::Kind::Written);
        runs.start();
        QCOMPARE(runs.texts(), u"B"_s);
        QVERIFY(runs.remove(1).kind == WriteResult::Kind::Written);
        QCOMPARE(runs.dataFile(), QByteArray());
    }

    void startsOverAndOver()
    {
        Runs runs;
        runs.setDataFile(TestHome::sample("household.dat"));
        for (int turn = 0; turn < 4; ++turn) {
            const QByteArray before = runs.dataFile();
            runs.start();
            QCOMPARE(runs.backup(), before);
            QCOMPARE(runs.notes.size(), size_t(10));
            QCOMPARE(runs.progress.first() + runs.progress.last(), u"1/1010/10"_s);
            QVERIFY(runs.duringLoad == WriteResult::Kind::Deferred && !runs.state.LoadingData);
            QVERIFY(runs.saveAll().ok());
        }
        QCOMPARE(runs.dataFile(), TestHome::sample("household.dat"));
        // Notes that nobody takes stay stored.
        runs.start(100, false);
        QVERIFY(runs.saveAll().ok() && runs.notes.size() == 8);
        runs.start();
        QVERIFY(runs.notes.size() == 10 && runs.notes[8].NoteStackOn && runs.report.keptAside.isEmpty());
        QCOMPARE(runs.files(), QStringList({u"quillets.bak"_s, u"quillets.dat"_s}));
    }

    void batchWritesOnce()
    {
        Runs runs;
        runs.startWith(TestHome::sample("hundred.dat"));
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

    void moreNotesThanRoom()
    {
        Runs runs;
        for (int k = 130; k >= 1; --k)
            runs.save(k, QString::number(k));
        for (int turn = 0; turn < 3; ++turn) {
            runs.start();
            QVERIFY(runs.report.restored == 100 && runs.report.overLimit == 30 && runs.report.keptAside.isEmpty());
            QVERIFY(runs.saveAll().ok());
        }
        for (int tag = 1; tag <= 99; ++tag)
            runs.remove(tag);
        runs.start();
        QVERIFY(runs.notes.size() == 31 && runs.texts().startsWith(u"100 101 ") && runs.texts().endsWith(u" 130"));
    }

    /// One row for each file of tests/data/damaged: what is wrong with it stands in its name.
    void damagedFiles_data()
    {
        const Rows<int, int, bool> row; // shown, not read, is damage: it is kept aside, and so is the former backup
        row("header-cut", 0, 0, true);
        row("not-a-data-file", 0, 3, true);
        row("count-negative", 0, 0, true);
        row("count-of-two-thousand-million", 10, 271, true);
        row("count-one-short", 9, 0, true);
        row("count-zero-but-records", 0, 0, true);
        row("total-wrong", 10, 0, false);
        row("last-byte-missing", 9, 1, true);
        row("bytes-behind-the-end", 10, 0, true);
        row("start-before-the-file", 9, 1, true);
        row("start-behind-the-file", 9, 1, true);
        row("two-entries-for-one-record", 10, 0, true);
        row("length-wrong", 10, 0, false);
        row("text-of-negative-length", 9, 1, true);
        row("text-of-odd-length", 9, 1, true);
        row("text-longer-than-the-file", 9, 1, true);
        row("true-as-one", 10, 0, false);
        row("sector-of-zeros", 10, 0, true);
        QCOMPARE(QDir(QStringLiteral(TEST_DATA "/damaged")).entryList(QDir::Files).size(), 18);
    }

    void damagedFiles()
    {
        const auto [shown, notRead, isDamage] = fetchRow<int, int, bool>();
        const QByteArray file =
            TestHome::sample(qPrintable(u"damaged/%1.dat"_s.arg(QLatin1StringView(QTest::currentDataTag()))));
        Runs runs;
        setContents(runs.paths.BackupFile, "what was good");
        runs.startWith(file);
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

    /// The rows' names are what happens to the file between two starts.
    void emptyFile_data()
    {
        const Rows<bool> row; // is told as lost
        row("all notes deleted", false);
        row("file removed", true);
        row("file cut to nothing", true);
        row("all notes deleted, one written, file cut to nothing", true);
    }

    /// What the user has deleted is not told as lost; what is gone in another way is, and does not cost the backup.
    void emptyFile()
    {
        const auto [isLoss] = fetchRow<bool>();
        const QByteArray happens = QTest::currentDataTag();
        Runs runs;
        runs.startWith(TestHome::sample("household.dat"));
        for (const clsNoteProps &note : runs.notes)
            QVERIFY(!happens.contains("deleted") || runs.remove(note.Tag).kind == WriteResult::Kind::Written);
        QVERIFY(!happens.contains("written") || runs.save(99, u"new"_s).kind == WriteResult::Kind::Written);
        QVERIFY(!happens.contains("removed") || QFile::remove(runs.paths.DataFile));
        QVERIFY(!happens.contains("cut") || QFile::resize(runs.paths.DataFile, 0));
        const QByteArray backup = runs.backup();
        runs.start();
        QCOMPARE(runs.report.keptAside.size(), isLoss ? 1 : 0);
        if (isLoss)
            QCOMPARE(contents(runs.report.keptAside.first()), backup);
        QVERIFY(runs.notes.empty() && runs.report.problem.isEmpty());
        runs.start();
        QVERIFY(runs.report.keptAside.isEmpty() && runs.backup().isEmpty());
    }

    void othersFileIsKept()
    {
        Runs runs;
        for (const QString &text : {u"mine"_s, u"again"_s})
            QVERIFY(runs.save(1, text).kind == WriteResult::Kind::Written);
        // A time that changes alone, as file systems round it, is nobody's writing.
        QFile touched(runs.paths.DataFile);
        QVERIFY(touched.open(QIODevice::ReadWrite) &&
                touched.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFile::FileModificationTime));
        touched.close();
        QVERIFY(runs.save(1, u"mine as well"_s).kind == WriteResult::Kind::Written &&
                runs.state.keptMeanwhile.isEmpty());
        runs.setDataFile("a file of another program");
        for (const QString &text : {u"mine too"_s, u"still mine"_s})
            QVERIFY(runs.save(1, text).kind == WriteResult::Kind::Written);
        QCOMPARE(runs.state.keptMeanwhile.size(), 1);
        QCOMPARE(contents(runs.state.keptMeanwhile.constFirst()), QByteArray("a file of another program"));
        QVERIFY(QDir(runs.paths.DataFolder).removeRecursively());
        QVERIFY(runs.save(1, u"in a new folder"_s).kind == WriteResult::Kind::Written);
        runs.start();
        QCOMPARE(runs.texts(), u"in a new folder"_s);
    }

    void unreadableFile_data()
    {
        const Rows<QByteArray, int> row; // comes back, stored
        row("nothing", {}, 0);
        row("its notes", TestHome::sample("household.dat"), 10);
        row("damaged", TestHome::sample("damaged/last-byte-missing.dat"), 9);
    }

    /// What could not be read at the start is not written over; when it can be read again it is stored with the rest.
    void unreadableFile()
    {
        const auto [comesBack, stored] = fetchRow<QByteArray, int>();
        Runs runs;
        setContents(runs.paths.BackupFile, "what was good");
        runs.spoilDataFile();
        runs.start();
        QVERIFY(!runs.report.problem.isEmpty() && runs.report.problem == runs.state.readOnlyReason);
        for (const QString &text : {u"new"_s, u"newer"_s}) {
            const WriteResult refused = runs.save(1, text);
            QVERIFY(refused.kind == WriteResult::Kind::Failed && refused.reason == runs.report.problem);
            QVERIFY(runs.state.unsaved && QFileInfo(runs.paths.DataFile).isDir());
        }
        QCOMPARE(runs.backup(), QByteArray("what was good"));
        runs.healDataFile();
        if (!comesBack.isEmpty())
            runs.setDataFile(comesBack);
        QVERIFY(modFileIO::flush(runs.state).ok() && runs.save(1, u"newest"_s).kind == WriteResult::Kind::Written);
        QVERIFY(runs.state.keptMeanwhile.isEmpty());
        QCOMPARE(runs.files().filter(u"damaged"_s).size(), stored == 9 ? 1 : 0);
        runs.start();
        QCOMPARE(int(runs.notes.size()), stored + 1);
        QCOMPARE(runs.notes[0].Data, u"newest"_s);
    }

    void readOnlyFolder()
    {
        if (geteuid() == 0)
            QSKIP("Nothing is read-only for root.");
        Runs runs;
        runs.setDataFile(TestHome::sample("household.dat").chopped(1));
        QFile::setPermissions(runs.paths.DataFolder, QFile::ReadOwner | QFile::ExeOwner);
        runs.start();
        QVERIFY(!runs.report.problem.isEmpty() && runs.state.asideOwedSince);
        QVERIFY(!runs.saveAll().ok());
        QFile::setPermissions(runs.paths.DataFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(modFileIO::flush(runs.state).ok());
        QVERIFY(runs.files().contains(u"quillets-2026-11-22-221530-damaged.dat"_s));
    }
};

QTEST_APPLESS_MAIN(testDataFile)
#include "testDataFile.moc"
