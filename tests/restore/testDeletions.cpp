// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/QuietLine.h"
#include "notestack/StackFixture.h"
#include "restore/deletions.h"

using namespace Qt::StringLiterals;

namespace
{

/// A program that offers to undo.
struct Fixture : StackFixture
{
    Fixture()
    {
        program.noteDeleted = [this](const DeletedNote &note) { deletions::offerUndo(program, note); };
    }
    QuietLine *line() const { return dynamic_cast<QuietLine *>(program.forms.find(formNames::QuietLine)); }
    void deleteNote(qint32 tag, Answer answer = Answer::Ok)
    {
        boxOf([this, tag] { choose(*at(tag), "mnuDelete"); }, answer);
    }
};

using End = void (*)(Fixture &);

} // namespace

class testDeletions final : public QObject
{
    Q_OBJECT

private slots:
    /// The note is as it was, on the disk too, though the deletion had been written.
    void desktopNote()
    {
        Fixture f;
        clsNoteProps note = f.alarmed(f.protectedRecord(u"text"_s, false, true));
        note.FrmLeft = 3000;
        note.OnTopOn = note.ToolBarOn = true;
        note.Comments = u"of another version"_s;
        const qint32 tag = f.create(note, NoteCreateMode::Load)->Tag();
        modForms::SaveAllNotes(f.program);
        f.at(tag)->setLocked(tag, false);
        const clsNoteProps before = *f.program.forms.recordOf(tag);
        f.deleteNote(tag);
        QVERIFY(f.at(tag) == nullptr && f.stored().empty());
        QVERIFY(f.line() != nullptr && f.line()->isVisible());
        QTest::keyClick(f.line(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(f.line() == nullptr && f.at(tag) != nullptr);
        QCOMPARE(*f.program.forms.recordOf(tag), before);
        QVERIFY(NoteFixture::isLocked(*f.at(tag)) && f.at(tag)->isVisible());
        QCOMPARE(f.stored().size(), 1U);
        f.test.clock.advance(120);
        QCOMPARE(f.test.sound.played, QStringList(before.SoundFile));
    }

    /// It comes back between its neighbours and is shown.
    void stackedNote()
    {
        Fixture f;
        f.addAll({u"a"_s, u"b"_s, u"c"_s});
        f.tabs.setCurrentIndex(1);
        f.type(1, u"typed"_s);
        f.boxOf([&f] { f.choose("mnuDelete"); });
        QCOMPARE(f.captions(), QStringList({u"a"_s, u"c"_s}));
        f.addAll({u"d"_s});
        f.stack.activateWindow();
        QTest::keyClick(&f.stack, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.captions(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(f.tabs.currentIndex(), 1);
        QVERIFY(f.program.forms.recordOf(2)->Data.contains(u"typed"_s));
        modForms::SaveAllNotes(f.program);
        QCOMPARE(f.stored().size(), 4U);
    }

    void ends_data()
    {
        const Rows<End> row; // end
        row("its time", [](Fixture &f) { f.line()->findChild<QTimer *>(u"timEnd"_s)->start(0); });
        row("Escape", [](Fixture &f) { QTest::keyClick(f.line(), Qt::Key_Escape); });
        row("its cross", [](Fixture &f) { press(*f.line(), "cmdClose"); });
        row("closed by the window manager", [](Fixture &f) { f.line()->close(); });
        row("the end of the program", [](Fixture &f) { modForms::CloseAllWindows(f.program); });
    }

    void ends()
    {
        const auto [end] = fetchRow<End>();
        Fixture f;
        f.deleteNote(f.create(u"one"_s)->Tag());
        const QPointer<QuietLine> line = f.line();
        end(f);
        QTRY_VERIFY(f.line() == nullptr);
        NoteFixture::deleteUnloaded();
        QVERIFY(line == nullptr && f.program.forms.tags().empty());
    }

    /// And that though there is no room.
    void onlyTheLatest()
    {
        Fixture f;
        const qint32 first = f.create(u"one"_s)->Tag();
        const qint32 second = f.create(u"two"_s)->Tag();
        f.deleteNote(first);
        f.program.NoteCounter = modCreateNote::MostNotes;
        f.deleteNote(second);
        press(*f.line(), "cmdAction");
        QVERIFY(f.line() == nullptr);
        QCOMPARE(f.program.forms.tags(), std::vector<qint32>{second});
    }

    void nothingDeletedNothingOffered()
    {
        Fixture f;
        const qint32 tag = f.create(u"one"_s)->Tag();
        f.deleteNote(tag, Fixture::Answer::Cancel);
        QVERIFY(f.at(tag) != nullptr && f.line() == nullptr);
        QVERIFY(!modForms::IsDialogShowing(f.program));
    }
};

QTEST_MAIN(testDeletions)
#include "testDeletions.moc"
