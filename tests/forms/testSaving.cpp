// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/PlainNote.h"
#include "forms/modTimers.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/failOnWarnings.h"

#include <QApplication>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;
using SaveAll = bool (*)(Program &);

class testSaving final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void writesOnce_data() { bothWays(); }
    void writesOnce();
    void failureIsToldOnceAndLosesNothing_data() { bothWays(); }
    void failureIsToldOnceAndLosesNothing();
    void cancelled_data();
    void cancelled();
    void noteThatGoesMeanwhile();
    void endedMeanwhile();
    void boxInsideABatch_data();
    void boxInsideABatch();
    void failureInsideABatchIsToldAfterIt();
    void whatIsTypedGoesAlong_data() { bothWays(); }
    void whatIsTypedGoesAlong();
    void nothingDuringTheLoad_data() { bothWays(); }
    void nothingDuringTheLoad();

private:
    static void bothWays();
    void makeNotes(int count);
    int changedCount() const;
    /// Texts of the notes in the data file, in its order.
    QStringList stored() const;

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    std::vector<PlainNote *> m_notes;
};

void testSaving::init()
{
    failOnWarnings();
    m_home = std::make_unique<TestHome>();
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
}

void testSaving::cleanup()
{
    QVERIFY(m_test->prompts.isDone());
    modForms::CloseAllWindows(m_test->program);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_notes.clear();
}

void testSaving::bothWays()
{
    QTest::addColumn<SaveAll>("saveAll");
    QTest::newRow("silently") << SaveAll(modForms::SaveAllNotes);
    QTest::newRow("with progress") << SaveAll(modForms::SaveAllWithProgress);
}

void testSaving::makeNotes(int count)
{
    for (int tag = 1; tag <= count; ++tag)
        m_notes.push_back(new PlainNote(m_test->program, tag));
}

int testSaving::changedCount() const
{
    const auto isChanged = [](const PlainNote *note) { return note->record.SaveTag == 1; };
    return static_cast<int>(std::count_if(m_notes.begin(), m_notes.end(), isChanged));
}

QStringList testSaving::stored() const
{
    DataFileState state;
    state.paths = m_home->paths;
    QStringList texts;
    const auto note = [&texts](clsNoteProps &&record) {
        texts.append(record.Data);
        return static_cast<qint32>(texts.size());
    };
    modFileIO::LoadDataFile(state, {}, 200, note, {}, {}, QDateTime::currentDateTime());
    return texts;
}

void testSaving::writesOnce()
{
    QFETCH(SaveAll, saveAll);
    Program &program = m_test->program;
    QVERIFY(!saveAll(program));
    makeNotes(100);
    QVERIFY(modForms::hasUnsavedNotes(program));
    QVERIFY(saveAll(program));
    QCOMPARE(program.file.replacements, 1);
    QCOMPARE(changedCount(), 0);
    QVERIFY(!modForms::hasUnsavedNotes(program));
    QCOMPARE(stored().size(), 100);
    QCOMPARE(stored().first(), u"note 100"_s);
    QVERIFY(saveAll(program));
    QCOMPARE(program.file.replacements, 1);
}

void testSaving::failureIsToldOnceAndLosesNothing()
{
    QFETCH(SaveAll, saveAll);
    Program &program = m_test->program;
    makeNotes(3);
    saveAll(program);
    m_notes[1]->record.Data = u"changed"_s;
    m_notes[1]->record.SaveTag = 1;
    m_home->spoilDataFile();
    m_test->prompts.expect(Answer::Ok);
    for (int attempt = 0; attempt < 3; ++attempt) {
        saveAll(program);
        QCOMPARE(m_notes[1]->record.SaveTag, qint16(1));
        QVERIFY(modForms::hasUnsavedNotes(program));
    }
    QVERIFY(m_test->prompts.isDone());
    m_home->healDataFile();
    saveAll(program);
    QCOMPARE(changedCount(), 0);
    QVERIFY(stored().contains(u"changed"_s));
    // The next run of failures is told again.
    m_notes[0]->record.SaveTag = 1;
    m_notes[0]->record.Data = u"again"_s;
    m_home->spoilDataFile();
    m_test->prompts.expect(Answer::Ok);
    saveAll(program);
}

void testSaving::cancelled_data()
{
    using Cancel = std::function<void(QWidget &)>;
    QTest::addColumn<Cancel>("cancel");
    QTest::newRow("button") << Cancel(
        [](QWidget &status) { status.findChild<QPushButton *>(u"cmdCancel"_s)->click(); });
    // Windows that open meanwhile may take the release.
    QTest::newRow("pressed button") << Cancel(
        [](QWidget &status) { QTest::mousePress(status.findChild<QPushButton *>(u"cmdCancel"_s), Qt::LeftButton); });
    QTest::newRow("Escape") << Cancel([](QWidget &status) { QTest::keyClick(&status, Qt::Key_Escape); });
    QTest::newRow("close") << Cancel([](QWidget &status) { QVERIFY(!status.close()); });
}

void testSaving::cancelled()
{
    QFETCH(std::function<void(QWidget &)>, cancel);
    makeNotes(6);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (m_test->program.SaveProgress == 3)
            cancel(*m_test->program.forms.find(formNames::Status)->window());
    });
    timer.start(0);
    modForms::SaveAllWithProgress(m_test->program);
    QCOMPARE(stored(), QStringList({u"note 3"_s, u"note 2"_s, u"note 1"_s}));
    QCOMPARE(changedCount(), 3);
    QCOMPARE(m_test->program.file.replacements, 1);
    QCOMPARE(m_test->program.forms.find(formNames::Status), nullptr);
}

void testSaving::noteThatGoesMeanwhile()
{
    makeNotes(4);
    QTimer::singleShot(0, this, [this] {
        m_notes[2]->unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    modForms::SaveAllWithProgress(m_test->program);
    QCOMPARE(stored(), QStringList({u"note 4"_s, u"note 2"_s, u"note 1"_s}));
}

/// A signal, or the end of the session, while the progress window is open.
void testSaving::endedMeanwhile()
{
    makeNotes(4);
    QTimer::singleShot(0, this, [this] {
        m_test->program.Exiting = true;
        modForms::SaveAllNotes(m_test->program);
        modForms::CloseAllWindows(m_test->program);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    modForms::SaveAllWithProgress(m_test->program);
    QCOMPARE(stored().size(), 4);
}

void testSaving::boxInsideABatch_data()
{
    using Save = std::function<void(Program &)>;
    QTest::addColumn<Save>("save");
    QTest::newRow("save of all") << Save([](Program &program) { modForms::SaveAllNotes(program); });
    QTest::newRow("rescue") << Save([](Program &program) { modForms::rescueNotes(program); });
}

/// A box that opens while notes are moved may stand for hours.
void testSaving::boxInsideABatch()
{
    QFETCH(std::function<void(Program &)>, save);
    makeNotes(2);
    Program &program = m_test->program;
    modForms::moveAll(program, {}, {1, 2}, [&](qint32 tag) {
        modForms::saveNote(program, m_notes[size_t(tag) - 1]->record);
        if (tag == 2)
            return;
        m_notes[1]->typed = u"typed meanwhile"_s;
        save(program);
        QCOMPARE(stored().first(), u"typed meanwhile"_s);
    });
    QCOMPARE(stored().size(), 2);
}

void testSaving::failureInsideABatchIsToldAfterIt()
{
    makeNotes(2);
    m_home->spoilDataFile();
    modForms::moveAll(m_test->program, {}, {1, 2}, [&](qint32 tag) {
        modForms::SaveAllNotes(m_test->program);
        QVERIFY(!m_test->program.owedFailure.isEmpty());
        if (tag == 2)
            m_test->prompts.expect(Answer::Ok);
    });
    QVERIFY(m_test->prompts.isDone() && changedCount() == 2);
}

void testSaving::whatIsTypedGoesAlong()
{
    QFETCH(SaveAll, saveAll);
    makeNotes(1);
    saveAll(m_test->program);
    m_notes[0]->typed = u"typed"_s;
    QVERIFY(modForms::hasUnsavedNotes(m_test->program));
    saveAll(m_test->program);
    QCOMPARE(stored(), QStringList(u"typed"_s));
    QCOMPARE(m_notes[0]->timesLeft, 0);
}

void testSaving::nothingDuringTheLoad()
{
    QFETCH(SaveAll, saveAll);
    makeNotes(2);
    m_test->program.file.LoadingData = true;
    QVERIFY(!saveAll(m_test->program));
    modForms::saveNote(m_test->program, m_notes[0]->record);
    modForms::removeNote(m_test->program, m_notes[0]->record);
    QCOMPARE(changedCount(), 2);
    QVERIFY(!QFile::exists(m_home->paths.DataFile));
    m_test->program.file.LoadingData = false;
}

QTEST_MAIN(testSaving)
#include "testSaving.moc"
