// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/SavingFixture.h"

#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;
using SaveAll = bool (*)(Program &);
using Save = void (*)(Program &);
using Act = void (*)(SavingFixture &, QWidget &);

class testSaving final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void writesOnce_data() { bothWays(); }
    void writesOnce()
    {
        const auto [saveAll] = fetchRow<SaveAll>();
        QVERIFY(!saveAll(program()));
        m_fixture->makeNotes(100);
        QVERIFY(modForms::hasUnsavedNotes(program()));
        for (int turn = 0; turn < 2; ++turn) {
            QVERIFY(saveAll(program()));
            QCOMPARE(program().file.replacements, 1);
            QVERIFY(m_fixture->changedCount() == 0 && !modForms::hasUnsavedNotes(program()));
            QCOMPARE(stored().size(), 100);
            QCOMPARE(stored().first(), u"note 100"_s);
        }
    }

    void failureIsToldOnceAndLosesNothing_data() { bothWays(); }
    void failureIsToldOnceAndLosesNothing()
    {
        const auto [saveAll] = fetchRow<SaveAll>();
        m_fixture->makeNotes(3);
        saveAll(program());
        // The next run of failures is told again.
        for (const QString &text : {u"changed"_s, u"again"_s}) {
            m_fixture->change(1, text);
            m_fixture->home.spoilDataFile();
            m_fixture->test.prompts.expect(Answer::Ok);
            for (int attempt = 0; attempt < 3; ++attempt) {
                saveAll(program());
                QCOMPARE(m_fixture->notes[1]->record.SaveTag, qint16(1));
                QVERIFY(modForms::hasUnsavedNotes(program()) && m_fixture->test.prompts.isDone());
            }
            m_fixture->home.healDataFile();
            saveAll(program());
            QCOMPARE(m_fixture->changedCount(), 0);
            QVERIFY(stored().contains(text));
        }
    }

    void meanwhile_data()
    {
        const Rows<QStringList, Act> row; // What is stored in the end, and what goes on after three notes.
        const QStringList three{u"note 3"_s, u"note 2"_s, u"note 1"_s};
        row("button", three, [](SavingFixture &, QWidget &status) { status.findChild<QPushButton *>()->click(); });
        // Windows that open meanwhile may take the release.
        row("pressed button", three, [](SavingFixture &, QWidget &status) {
            QTest::mousePress(&control<QPushButton>(status, "cmdCancel"), Qt::LeftButton);
        });
        row("Escape", three, [](SavingFixture &, QWidget &status) { QTest::keyClick(&status, Qt::Key_Escape); });
        row("close", three, [](SavingFixture &, QWidget &status) { QVERIFY(!status.close()); });
        row("a note goes", QStringList{u"note 6"_s, u"note 4"_s} + three,
            [](SavingFixture &f, QWidget &) { f.notes[4]->unload(); });
        // By a signal, or with the session.
        row("the program ends", QStringList{u"note 6"_s, u"note 5"_s, u"note 4"_s} + three,
            [](SavingFixture &f, QWidget &) {
                f.program.Exiting = true;
                modForms::SaveAllNotes(f.program);
                modForms::CloseAllWindows(f.program);
            });
    }

    void meanwhile()
    {
        const auto [left, act] = fetchRow<QStringList, Act>();
        m_fixture->makeNotes(6);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [this, &timer, happens = act] {
            if (program().SaveProgress != 3)
                return;
            timer.stop();
            happens(*m_fixture, *program().forms.find(formNames::Status)->window());
            m_fixture->deleteUnloaded();
        });
        timer.start(0);
        modForms::SaveAllWithProgress(program());
        QCOMPARE(stored(), left);
        QCOMPARE(modForms::hasUnsavedNotes(program()), left.size() == 3);
        QCOMPARE(program().file.replacements, 1);
        QCOMPARE(program().forms.find(formNames::Status), nullptr);
    }

    void boxInsideABatch_data()
    {
        const Rows<Save> row; // save
        row("save of all", [](Program &program) { modForms::SaveAllNotes(program); });
        row("rescue", [](Program &program) { modForms::rescueNotes(program); });
    }

    /// A box that opens while notes are moved may stand for hours.
    void boxInsideABatch()
    {
        const auto save = std::get<0>(fetchRow<Save>());
        m_fixture->makeNotes(2);
        modForms::moveAll(program(), {}, {1, 2}, [this, save](qint32 tag) {
            modForms::saveNote(program(), m_fixture->notes[size_t(tag) - 1]->record);
            if (tag == 2)
                return;
            m_fixture->notes[1]->typed = u"typed meanwhile"_s;
            save(program());
            QCOMPARE(stored().first(), u"typed meanwhile"_s);
        });
        QCOMPARE(stored().size(), 2);
    }

    void failureInsideABatchIsToldAfterIt()
    {
        m_fixture->makeNotes(2);
        m_fixture->home.spoilDataFile();
        modForms::moveAll(program(), {}, {1, 2}, [this](qint32 tag) {
            modForms::SaveAllNotes(program());
            QVERIFY(!program().owedFailure.isEmpty());
            if (tag == 2)
                m_fixture->test.prompts.expect(Answer::Ok);
        });
        QVERIFY(m_fixture->test.prompts.isDone() && m_fixture->changedCount() == 2);
    }

    void whatIsTypedGoesAlong_data() { bothWays(); }
    void whatIsTypedGoesAlong()
    {
        const auto [saveAll] = fetchRow<SaveAll>();
        m_fixture->makeNotes(1);
        saveAll(program());
        m_fixture->notes[0]->typed = u"typed"_s;
        QVERIFY(modForms::hasUnsavedNotes(program()));
        saveAll(program());
        QCOMPARE(stored(), QStringList(u"typed"_s));
        QCOMPARE(m_fixture->notes[0]->timesLeft, 0);
    }

    void nothingDuringTheLoad_data() { bothWays(); }
    void nothingDuringTheLoad()
    {
        const auto [saveAll] = fetchRow<SaveAll>();
        m_fixture->makeNotes(2);
        program().file.LoadingData = true;
        QVERIFY(!saveAll(program()));
        modForms::saveNote(program(), m_fixture->notes[0]->record);
        modForms::removeNote(program(), m_fixture->notes[0]->record);
        QCOMPARE(m_fixture->changedCount(), 2);
        QVERIFY(!QFile::exists(m_fixture->home.paths.DataFile));
        program().file.LoadingData = false;
    }

private:
    static void bothWays()
    {
        const Rows<SaveAll> row; // saveAll
        row("silently", modForms::SaveAllNotes);
        row("with progress", modForms::SaveAllWithProgress);
    }
    Program &program() const { return m_fixture->program; }
    QStringList stored() const { return m_fixture->storedTexts(); }

    std::optional<SavingFixture> m_fixture;
};

QTEST_MAIN(testSaving)
#include "testSaving.moc"
