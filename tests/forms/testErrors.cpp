// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/PlainNote.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"

#include <QApplication>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace
{

constexpr int MostCalls = 5; ///< More of one kind than a save makes.

/// What recorder.c reads; the text is what differs from the faults before.
void setFaults(const QByteArray &faults)
{
    TestHome::setContents(qEnvironmentVariable("RECORDER_FAULTS"), faults);
}

} // namespace

/// Saves on a disk that fails, run with recorder.c preloaded.
class testErrors final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void everyCall_data();
    void everyCall();

private:
    void saveOn(const QByteArray &faults, int error);
    void change(const QString &text);
    QStringList stored() const;

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<TestProgram> m_test;
    std::vector<PlainNote *> m_notes;
    int m_failures = 0;
};

void testErrors::initTestCase()
{
    QVERIFY2(qEnvironmentVariable("LD_PRELOAD").contains("recorder"_L1), "to be run by ctest");
}

void testErrors::init()
{
    m_home = std::make_unique<TestHome>();
    qputenv("RECORDER_FOLDER", m_home->paths.DataFolder.toUtf8());
    setFaults({});
    m_test = std::make_unique<TestProgram>(QDateTime(QDate(2026, 3, 1), QTime(12, 0)), m_home->paths);
    for (int tag = 1; tag <= 3; ++tag)
        m_notes.push_back(new PlainNote(m_test->program, tag));
    modForms::SaveAllNotes(m_test->program);
    m_failures = 0;
}

void testErrors::cleanup()
{
    setFaults({});
    modForms::CloseAllWindows(m_test->program);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_notes.clear();
}

void testErrors::change(const QString &text)
{
    m_notes[1]->record.Data = text;
    modForms::markChanged(m_test->program, m_notes[1]->record);
}

QStringList testErrors::stored() const
{
    DataFileState state;
    state.paths = m_home->paths;
    QStringList texts;
    const auto note = [&texts](clsNoteProps &&record) {
        texts.append(record.Data);
        return static_cast<qint32>(texts.size());
    };
    const LoadReport report = modFileIO::LoadDataFile(state, {}, 9, note, {}, {}, QDateTime::currentDateTime());
    texts.append(report.keptAside);
    texts.sort();
    return texts;
}

void testErrors::everyCall_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isFailure");
    struct Row
    {
        const char *kind;
        std::vector<int> errors;
    };
    for (const Row &row : {Row{"open", {EACCES, EIO, ENOSPC, EROFS}},
                           {"write", {EIO, ENOSPC, EDQUOT}},
                           {"sync", {EIO, ENOSPC}},
                           {"foldersync", {EIO}},
                           {"rename", {EIO, EACCES, ENOSPC}}})
        for (const int error : row.errors)
            QTest::addRow("%s: %s", row.kind, qPrintable(qt_error_string(error)))
                << QByteArray(row.kind) << error << true;
    for (const char *kind : {"write", "sync", "foldersync", "open"})
        QTest::addRow("%s: interrupted", kind) << QByteArray(kind) << EINTR << false;
    QTest::addRow("write: short") << QByteArray("write") << -1 << false;
}

/// One change, saved on a disk that fails, then on one that is well again.
void testErrors::saveOn(const QByteArray &faults, int error)
{
    Program &program = m_test->program;
    const QString before = m_notes[1]->record.Data;
    const QString after = u"changed by "_s + QString::fromLatin1(faults);
    change(after);
    setFaults(faults);
    m_test->prompts.expect(Prompts::Answer::Ok);
    modForms::SaveAllNotes(program);
    const bool isTold = m_test->prompts.isDone();
    QCOMPARE(modForms::hasUnsavedNotes(program), isTold);
    if (isTold) {
        ++m_failures;
        QVERIFY2(m_test->prompts.last.text.contains(qt_error_string(error)), qPrintable(m_test->prompts.last.text));
        modForms::SaveAllNotes(program); // Tells nothing any more.
    }
    setFaults({});
    const QStringList left = stored();
    const QStringList old{before, u"note 1"_s, u"note 3"_s};
    const QStringList all{after, u"note 1"_s, u"note 3"_s};
    QVERIFY2(left == all || (isTold && left == old), qPrintable(left.join(u", ")));
    modForms::SaveAllNotes(program);
    QVERIFY(!modForms::hasUnsavedNotes(program));
    QCOMPARE(stored(), all);
    if (!isTold)
        m_test->prompts.ask({}, nullptr); // Nobody has asked for the answer.
}

void testErrors::everyCall()
{
    QFETCH(QByteArray, kind);
    QFETCH(int, error);
    QFETCH(bool, isFailure);
    const QByteArray name = error == -1 ? QByteArray("short") : QByteArray::number(error);
    for (int call = 1; call <= MostCalls; ++call)
        saveOn(kind + ':' + QByteArray::number(call) + ':' + name, error);
    if (isFailure || error == -1)
        for (int call = 1; call <= MostCalls; ++call)
            saveOn(kind + ':' + QByteArray::number(call) + "+:" + name, error);
    QCOMPARE(m_failures > 0, isFailure);
}

QTEST_MAIN(testErrors)
#include "testErrors.moc"
