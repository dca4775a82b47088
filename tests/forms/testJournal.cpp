// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/PlainNote.h"
#include "forms/modFormsJournal.h"
#include "model/modStreams.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;
using End = void (*)(Program &);

class testJournal final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void isWrittenWhileSomebodyTypes();
    void shrinksAsThingsAreSaved();
    void failedSave();
    void ends_data();
    void ends();
    void nothingWhileItIsBroken();
    void savedBetweenTwoWrites();

private:
    Journal journal() const;
    QStringList texts() const;
    void type(PlainNote &note, const QString &text);
    void settle() { modForms::settleJournal(m_test->program); }

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    PlainNote *m_first = nullptr;
    PlainNote *m_second = nullptr;
};

/// Two notes that are saved.
void testJournal::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    modForms::keepJournal(m_test->program);
    m_first = new PlainNote(m_test->program, 1);
    m_second = new PlainNote(m_test->program, 2);
    modForms::SaveAllNotes(m_test->program);
    QVERIFY(!QFile::exists(m_home->paths.JournalFile) && !m_test->program.journalDue.isActive());
}

void testJournal::cleanup()
{
    QVERIFY(m_test->prompts.isDone());
    modForms::CloseAllWindows(m_test->program);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Journal testJournal::journal() const
{
    const auto journal = journalFile::decode(TestHome::contents(m_home->paths.JournalFile));
    return journal ? journal.value() : Journal();
}

QStringList testJournal::texts() const
{
    QStringList all;
    for (const JournalEntry &entry : journal().entries)
        all.append(modStreams::DecodeNoteRecord(entry.record, 0, {}).value().note.Data);
    return all;
}

void testJournal::type(PlainNote &note, const QString &text)
{
    note.typed = text;
    modForms::armJournal(m_test->program);
}

/// A key every 50 ms is never followed by a pause.
void testJournal::isWrittenWhileSomebodyTypes()
{
    QElapsedTimer clock;
    clock.start();
    while (texts().isEmpty() && clock.elapsed() < 5000) {
        type(*m_first, m_first->typed + u'x');
        QTest::qWait(50);
    }
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
    settle();
    QCOMPARE(texts(), QStringList(m_first->typed));
    const DataFileState &file = m_test->program.file;
    QCOMPARE(journal().file, journalFile::digestOf(m_home->dataFile()));
    QCOMPARE(journal().entries[0].base, journalFile::digestOf(file.disk.recordOf(1)));
    QCOMPARE(QFile::permissions(m_home->paths.JournalFile) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
    // The edit goes on, and nothing runs until something changes again.
    QVERIFY(m_first->record.Data == u"note 1"_s && m_first->timesLeft == 0);
    QVERIFY(!m_test->program.journalDue.isActive());
}

void testJournal::shrinksAsThingsAreSaved()
{
    auto *fresh = new PlainNote(m_test->program, 3);
    type(*m_first, u"one"_s);
    type(*m_second, u"two"_s);
    settle();
    QCOMPARE(texts(), QStringList({u"one"_s, u"two"_s, u"note 3"_s}));
    QCOMPARE(journal().entries[2].base, QByteArray());
    fresh->unload();
    m_first->updateRecords();
    modForms::saveNote(m_test->program, m_first->record);
    QCOMPARE(texts(), QStringList(u"two"_s));
    const QDateTime written = QFileInfo(m_home->paths.JournalFile).lastModified();
    QTest::qWait(20);
    settle();
    QCOMPARE(QFileInfo(m_home->paths.JournalFile).lastModified(), written);
    // Typed back to what is stored.
    type(*m_second, u"note 2"_s);
    settle();
    QVERIFY(!QFile::exists(m_home->paths.JournalFile));
}

/// What is in the image and not on the disk counts as saved for a moment.
void testJournal::failedSave()
{
    type(*m_first, u"one"_s);
    m_home->spoilDataFile();
    m_test->prompts.expect(Answer::Ok);
    modForms::SaveAllNotes(m_test->program);
    QCOMPARE(texts(), QStringList(u"one"_s));
    {
        SaveBatch batch(m_test->program.file);
        modForms::saveNote(m_test->program, m_first->record);
        QVERIFY(m_first->record.SaveTag == 0);
        settle();
        QCOMPARE(texts(), QStringList(u"one"_s));
        m_home->healDataFile();
    }
    settle();
    QVERIFY(!QFile::exists(m_home->paths.JournalFile));
}

void testJournal::ends_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("given up") << End(modForms::discardJournal) << QStringList(u"carried"_s);
    QTest::newRow("the windows go") << End(modForms::CloseAllWindows) << QStringList({u"carried"_s, u"typed"_s});
}

/// What no window showed was not given up.
void testJournal::ends()
{
    QFETCH(End, end);
    clsNoteProps note;
    note.Data = u"carried"_s;
    m_test->program.file.carried = {{{}, modStreams::EncodeNoteRecord(note)}};
    type(*m_first, u"typed"_s);
    settle();
    end(m_test->program);
    QTEST(texts(), "left");
    type(*m_first, u"later"_s);
    QTest::qWait(600);
    QTEST(texts(), "left");
}

/// A journal that could not be written is told once, and tried again though nobody types and it be the same.
void testJournal::nothingWhileItIsBroken()
{
    QStringList told;
    m_test->program.journalTrouble = [&told](const QString &reason) { told += reason; };
    QDir().mkdir(m_home->paths.JournalFile);
    for (const QString &text : {u"on"_s, u"one"_s}) {
        type(*m_first, text);
        settle();
        QCoreApplication::processEvents();
    }
    QVERIFY2(told.size() == 1 && !told[0].isEmpty(), qPrintable(told.join(u'|')));
    QVERIFY(m_test->program.journalDue.isActive());
    QDir().rmdir(m_home->paths.JournalFile);
    m_test->program.journalDue.start(0);
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told[1], QString());
    QCOMPARE(texts(), QStringList(u"one"_s));
    m_test->program.file.LoadingData = true;
    type(*m_first, u"two"_s);
    QTest::qWait(600);
    QCOMPARE(texts(), QStringList(u"one"_s));
    m_test->program.file.LoadingData = false;
    QTRY_COMPARE(texts(), QStringList(u"two"_s));
}

/// A crash between the writing of the data file and that of the journal must not bring an older version of the note as
/// another one.
void testJournal::savedBetweenTwoWrites()
{
    type(*m_first, u"one"_s);
    settle();
    m_first->typed = u"two"_s;
    m_first->updateRecords();
    m_home->spoilDataFile();
    m_test->prompts.expect(Answer::Ok);
    modForms::saveNote(m_test->program, m_first->record);
    QCOMPARE(texts(), QStringList(u"two"_s));
    m_home->healDataFile();
}

QTEST_MAIN(testJournal)
#include "testJournal.moc"
