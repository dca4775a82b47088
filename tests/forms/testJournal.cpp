// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/SavingFixture.h"
#include "forms/modFormsJournal.h"
#include "model/modStreams.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using End = void (*)(Program &);

class testJournal final : public QObject
{
    Q_OBJECT

private slots:
    /// Two notes that are saved.
    void init()
    {
        m_fixture.emplace();
        modForms::keepJournal(program());
        m_fixture->makeNotes(2);
        modForms::SaveAllNotes(program());
        QVERIFY(!isThere() && !program().journalDue.isActive());
    }
    void cleanup() { m_fixture.reset(); }

    /// A key every 50 ms is never followed by a pause.
    void isWrittenWhileSomebodyTypes()
    {
        const PlainNote &first = *m_fixture->notes[0];
        QElapsedTimer clock;
        clock.start();
        while (texts().isEmpty() && clock.elapsed() < 5000) {
            type(0, first.typed + u'x');
            QTest::qWait(50);
        }
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        settle();
        QCOMPARE(texts(), QStringList(first.typed));
        QCOMPARE(journal().file, journalFile::digestOf(m_fixture->home.dataFile()));
        QCOMPARE(journal().entries[0].base, journalFile::digestOf(program().file.disk.recordOf(1)));
        QCOMPARE(QFile::permissions(path()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        // The edit goes on, and nothing runs until something changes again.
        QVERIFY(first.record.Data == u"note 1"_s && first.timesLeft == 0);
        QVERIFY(!program().journalDue.isActive());
    }

    void shrinksAsThingsAreSaved()
    {
        m_fixture->makeNotes(1);
        type(0, u"one"_s);
        type(1, u"two"_s);
        settle();
        QCOMPARE(texts(), QStringList({u"one"_s, u"two"_s, u"note 3"_s}));
        QCOMPARE(journal().entries[2].base, QByteArray());
        m_fixture->notes[2]->unload();
        saveFirst();
        QCOMPARE(texts(), QStringList(u"two"_s));
        const QDateTime written = QFileInfo(path()).lastModified();
        QTest::qWait(20);
        settle();
        QCOMPARE(QFileInfo(path()).lastModified(), written);
        // Typed back to what is stored.
        type(1, u"note 2"_s);
        settle();
        QVERIFY(!isThere());
    }

    /// What is in the image and not on the disk counts as saved for a moment.
    void failedSave()
    {
        type(0, u"one"_s);
        m_fixture->home.spoilDataFile();
        m_fixture->boxOf([this] { modForms::SaveAllNotes(program()); });
        QCOMPARE(texts(), QStringList(u"one"_s));
        {
            SaveBatch batch(program().file);
            saveFirst();
            QVERIFY(m_fixture->notes[0]->record.SaveTag == 0);
            settle();
            QCOMPARE(texts(), QStringList(u"one"_s));
            m_fixture->home.healDataFile();
        }
        settle();
        QVERIFY(!isThere());
    }

    void ends_data()
    {
        const Rows<End, QStringList> row; // end, left
        row("given up", modForms::discardJournal, {u"carried"_s});
        row("the windows go", modForms::CloseAllWindows, {u"carried"_s, u"typed"_s});
    }

    /// What no window showed was not given up.
    void ends()
    {
        const auto [end, left] = fetchRow<End, QStringList>();
        clsNoteProps note;
        note.Data = u"carried"_s;
        program().file.carried = {{{}, modStreams::EncodeNoteRecord(note)}};
        type(0, u"typed"_s);
        settle();
        end(program());
        QCOMPARE(texts(), left);
        type(0, u"later"_s);
        QTest::qWait(600);
        QCOMPARE(texts(), left);
    }

    /// A journal that could not be written is told once, and tried again though nobody types and it be the same.
    void nothingWhileItIsBroken()
    {
        QStringList told;
        program().journalTrouble = [&told](const QString &reason) { told += reason; };
        QDir().mkdir(path());
        for (const QString &text : {u"on"_s, u"one"_s}) {
            type(0, text);
            settle();
            QCoreApplication::processEvents();
        }
        QVERIFY2(told.size() == 1 && !told[0].isEmpty(), qPrintable(told.join(u'|')));
        QVERIFY(program().journalDue.isActive());
        QDir().rmdir(path());
        program().journalDue.start(0);
        QTRY_COMPARE(told.size(), 2);
        QCOMPARE(told[1], QString());
        QCOMPARE(texts(), QStringList(u"one"_s));
        program().file.LoadingData = true;
        type(0, u"two"_s);
        QTest::qWait(600);
        QCOMPARE(texts(), QStringList(u"one"_s));
        program().file.LoadingData = false;
        QTRY_COMPARE(texts(), QStringList(u"two"_s));
    }

    /// A crash between the writing of the data file and that of the journal must not bring an older version of the
    /// note as another one.
    void savedBetweenTwoWrites()
    {
        type(0, u"one"_s);
        settle();
        m_fixture->notes[0]->typed = u"two"_s;
        m_fixture->home.spoilDataFile();
        m_fixture->boxOf([this] { saveFirst(); });
        QCOMPARE(texts(), QStringList(u"two"_s));
        m_fixture->home.healDataFile();
    }

private:
    Program &program() const { return m_fixture->program; }
    QString path() const { return m_fixture->home.paths.JournalFile; }
    bool isThere() const { return QFile::exists(path()); }
    void settle() const { modForms::settleJournal(program()); }

    Journal journal() const
    {
        const auto journal = journalFile::decode(TestHome::contents(path()));
        return journal ? journal.value() : Journal();
    }
    QStringList texts() const
    {
        QStringList all;
        for (const JournalEntry &entry : journal().entries)
            all.append(modStreams::DecodeNoteRecord(entry.record, 0, {}).value().note.Data);
        return all;
    }
    void type(size_t index, const QString &text) const
    {
        m_fixture->notes[index]->typed = text;
        modForms::armJournal(program());
    }
    /// With what is being typed into it.
    void saveFirst() const
    {
        m_fixture->notes[0]->updateRecords();
        modForms::saveNote(program(), m_fixture->notes[0]->record);
    }

    std::optional<SavingFixture> m_fixture;
};

QTEST_MAIN(testJournal)
#include "testJournal.moc"
