// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace
{

QByteArray recordOf(const QString &text)
{
    return modStreams::EncodeNoteRecord(taggedNote(1, text));
}

/// Words, from the newest record to the oldest.
QByteArray dataFile(const QString &texts)
{
    DataImage image;
    qint32 tag = 0;
    for (const QString &text : texts.split(u' ', Qt::SkipEmptyParts))
        image.keepLoaded(++tag, recordOf(text));
    return image.bytes();
}

/// "was>is" for a note that was changed, ">is" for a new one.
QByteArray journal(const QByteArray &file, const QString &changes)
{
    Journal journal{journalFile::digestOf(file), {}};
    for (const QString &change : changes.split(u' ', Qt::SkipEmptyParts)) {
        const QString was = change.section(u'>', 0, 0);
        journal.entries.push_back(
            {was.isEmpty() ? QByteArray() : journalFile::digestOf(recordOf(was)), recordOf(change.section(u'>', 1))});
    }
    return journalFile::encode(journal);
}

} // namespace

class testJournalReplay final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cases_data();
    void cases();
    void unreadableDataFile();
    void flawedJournal();

private:
    void load(int room = 100);
    QString shown() const { return m_shown.join(u' '); }

    std::unique_ptr<QTemporaryDir> m_folder;
    DataFileState m_state;
    LoadReport m_report;
    QStringList m_shown;
};

void testJournalReplay::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(m_folder->path()).mkdir(u"Data"_s);
}

void testJournalReplay::load(int room)
{
    m_state = DataFileState();
    m_state.paths = ProgramPaths::under(m_folder->path(), m_folder->path());
    m_shown.clear();
    const auto onRecord = [this](const clsNoteProps &note) {
        m_shown.append(note.Data);
        return static_cast<qint32>(m_shown.size());
    };
    m_report = modFileIO::LoadDataFile(m_state, {}, room, onRecord, {}, {}, {QDate(2026, 11, 22), QTime(22, 15, 30)});
}

void testJournalReplay::cases_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("broughtBack");
    QTest::addColumn<QString>("then"); // What was stored when the journal was written.
    const auto row = [](const char *name, const QString &file, const QString &changes, const QString &shown,
                        int broughtBack) {
        QTest::newRow(name) << file << changes << 100 << shown << shown << broughtBack << file;
    };
    const auto laterRow = [](const char *name, const QString &then, const QString &file, const QString &changes,
                             const QString &shown, int broughtBack) {
        QTest::newRow(name) << file << changes << 100 << shown << shown << broughtBack << then;
    };
    row("nothing", u"a b"_s, {}, u"a b"_s, 0);
    row("changed", u"a b c"_s, u"b>B"_s, u"a B c"_s, 1);
    row("new", u"a b"_s, u">n >m"_s, u"m n a b"_s, 2);
    row("new, no file", {}, u">n"_s, u"n"_s, 1);
    row("all of it", u"a b"_s, u"a>A >n b>B"_s, u"n A B"_s, 3);
    row("new one like a stored one", u"n a"_s, u">n"_s, u"n n a"_s, 1);
    laterRow("stored meanwhile", u"a b"_s, u"a B"_s, u"b>B"_s, u"a B"_s, 0);
    laterRow("new one stored meanwhile", u"a"_s, u"n a"_s, u">n"_s, u"n a"_s, 0);
    laterRow("one of two alike stored meanwhile", u"a a"_s, u"a A"_s, u"a>A"_s, u"a A"_s, 0);
    laterRow("one of two changes stored", u"a b"_s, u"A b"_s, u"a>A b>B"_s, u"A B"_s, 1);
    laterRow("an earlier version of it stored", u"a"_s, u"A"_s, u"a>B"_s, u"B A"_s, 1);
    row("written back as it was stored before", u"a b"_s, u"a>b"_s, u"b b"_s, 1);
    row("what it replaces is gone", u"a"_s, u"b>B"_s, u"B a"_s, 1);
    row("two alike, one changed", u"a a"_s, u"a>A"_s, u"a A"_s, 1);
    row("two alike, both changed", u"a a"_s, u"a>A a>B"_s, u"B A"_s, 2);
    row("one, changed twice", u"a"_s, u"a>A a>B"_s, u"B A"_s, 2);
    laterRow("two new ones alike, one stored", {}, u"n"_s, u">n >n"_s, u"n n"_s, 1);
    QTest::newRow("no room for a new one") << u"a b"_s << u">n a>A"_s << 2 << u"A b"_s << u"A b n"_s << 2 << u"a b"_s;
    QTest::newRow("changed beyond the room") << u"a b"_s << u"b>B"_s << 1 << u"a"_s << u"a B"_s << 1 << u"a b"_s;
}

/// What was saved meanwhile is not brought back again, although the journal is still there.
void testJournalReplay::cases()
{
    QFETCH(QString, file);
    QFETCH(QString, changes);
    QFETCH(int, room);
    QFETCH(QString, then);
    const QByteArray written = journal(dataFile(then), changes);
    load();
    setContents(m_state.paths.DataFile, dataFile(file));
    setContents(m_state.paths.JournalFile, written);
    load(room);
    QTEST(shown(), "shown");
    QTEST(m_report.broughtBack, "broughtBack");
    QCOMPARE(contents(m_state.paths.BackupFile), dataFile(file));
    QCOMPARE(contents(m_state.paths.DataFile), dataFile(file));
    QVERIFY(m_state.unsaved == (m_report.broughtBack > 0) && m_report.keptAside.isEmpty());
    QVERIFY(modFileIO::flush(m_state).ok() && m_state.carried.empty());
    load();
    QTEST(shown(), "stored");
    QCOMPARE(m_report.broughtBack, 0);
    QCOMPARE(contents(m_state.paths.JournalFile), written);
}

/// The journal waits until its notes can be stored with those of the file.
void testJournalReplay::unreadableDataFile()
{
    load();
    QFile::remove(m_state.paths.DataFile);
    QDir().mkdir(m_state.paths.DataFile);
    setContents(m_state.paths.JournalFile, journal({}, u"a>A >n"_s));
    load();
    QCOMPARE(m_state.carried.size(), size_t(2));
    QVERIFY(modFileIO::WriteNoteRecord(m_state, taggedNote(7, u"new"_s), NoteFate::Keep).kind ==
            WriteResult::Kind::Failed);
    QVERIFY(m_state.carried.size() == 2 && contents(m_state.paths.JournalFile) == journal({}, u"a>A >n"_s));
    QDir().rmdir(m_state.paths.DataFile);
    setContents(m_state.paths.DataFile, dataFile(u"a b"_s));
    QVERIFY(modFileIO::flush(m_state).ok() && m_state.carried.empty());
    load();
    QCOMPARE(shown(), u"new n A b"_s);
}

void testJournalReplay::flawedJournal()
{
    load();
    setContents(m_state.paths.DataFile, dataFile(u"a"_s));
    setContents(m_state.paths.JournalFile, journal(dataFile(u"a"_s), u"a>A"_s).chopped(1));
    load();
    QVERIFY(shown() == u"a"_s && m_report.broughtBack == 0 && !QFile::exists(m_state.paths.JournalFile));
    QCOMPARE(m_report.keptAside, QStringList(m_state.paths.DataFolder + u"/quillets-2026-11-22-221530-damaged.jnl"_s));
    QCOMPARE(contents(m_report.keptAside.constFirst()), journal(dataFile(u"a"_s), u"a>A"_s).chopped(1));
}

QTEST_APPLESS_MAIN(testJournalReplay)
#include "testJournalReplay.moc"
