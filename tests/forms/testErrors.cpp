// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/SavingFixture.h"

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
    void initTestCase() { QVERIFY2(qEnvironmentVariable("LD_PRELOAD").contains("recorder"_L1), "to be run by ctest"); }

    void init()
    {
        m_fixture.emplace(3);
        qputenv("RECORDER_FOLDER", m_fixture->home.paths.DataFolder.toUtf8());
        setFaults({});
        modForms::SaveAllNotes(m_fixture->program);
        m_failures = 0;
    }

    void cleanup()
    {
        setFaults({});
        m_fixture.reset();
    }

    void everyCall_data()
    {
        const Rows<QByteArray, int, bool> row; // kind, error, whether the save fails
        struct Kind
        {
            const char *name;
            std::vector<int> errors;
        };
        for (const Kind &kind : {Kind{"open", {EACCES, EIO, ENOSPC, EROFS}},
                                 {"write", {EIO, ENOSPC, EDQUOT}},
                                 {"sync", {EIO, ENOSPC}},
                                 {"foldersync", {EIO}},
                                 {"rename", {EIO, EACCES, ENOSPC}}})
            for (const int error : kind.errors)
                row(u"%1: %2"_s.arg(QLatin1StringView(kind.name), qt_error_string(error)), kind.name, error, true);
        for (const char *kind : {"write", "sync", "foldersync", "open"})
            row(u"%1: interrupted"_s.arg(QLatin1StringView(kind)), kind, EINTR, false);
        row("write: short", "write", -1, false);
    }

    void everyCall()
    {
        const auto [kind, error, isFailure] = fetchRow<QByteArray, int, bool>();
        const QByteArray name = error == -1 ? QByteArray("short") : QByteArray::number(error);
        for (int call = 1; call <= MostCalls; ++call)
            saveOn(kind + ':' + QByteArray::number(call) + ':' + name, error);
        if (isFailure || error == -1)
            for (int call = 1; call <= MostCalls; ++call)
                saveOn(kind + ':' + QByteArray::number(call) + "+:" + name, error);
        QCOMPARE(m_failures > 0, isFailure);
    }

private:
    /// One change, saved on a disk that fails, then on one that is well again.
    void saveOn(const QByteArray &faults, int error)
    {
        Program &program = m_fixture->program;
        ScriptedPrompts &prompts = m_fixture->test.prompts;
        const QString before = m_fixture->notes[1]->record.Data;
        const QString after = u"changed by "_s + QString::fromLatin1(faults);
        m_fixture->change(1, after);
        setFaults(faults);
        prompts.expect(Prompts::Answer::Ok);
        modForms::SaveAllNotes(program);
        const bool isTold = prompts.isDone();
        QCOMPARE(modForms::hasUnsavedNotes(program), isTold);
        if (isTold) {
            ++m_failures;
            QVERIFY2(prompts.last.text.contains(qt_error_string(error)), qPrintable(prompts.last.text));
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
            prompts.ask({}, nullptr); // Nobody has asked for the answer.
    }

    /// The texts in the data file, and what was put aside.
    QStringList stored() const
    {
        QStringList aside;
        QStringList texts = m_fixture->storedTexts(&aside) + aside;
        texts.sort();
        return texts;
    }

    std::optional<SavingFixture> m_fixture;
    int m_failures = 0;
};

QTEST_MAIN(testErrors)
#include "testErrors.moc"
