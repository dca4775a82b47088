// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/QuietLine.h"
#include "notestack/StackFixture.h"
#include "restore/deletions.h"

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

namespace
{

struct Fixture
{
    StackFixture f;

    Fixture()
    {
        f.program.noteDeleted = [this](const DeletedNote &note) { deletions::offerUndo(f.program, note); };
    }
    QuietLine *line() const { return dynamic_cast<QuietLine *>(f.program.forms.find(formNames::QuietLine)); }
    void deleteNote(qint32 tag)
    {
        f.test.prompts.expect(Answer::Ok);
        NoteFixture::choose(*f.at(tag), "mnuDelete");
    }
    clsNoteProps full()
    {
        clsNoteProps note = f.alarmed(f.protectedRecord(u"text"_s, false, true));
        note.FrmLeft = 3000;
        note.FrmTop = 1500;
        note.OnTopOn = note.ToolBarOn = true;
        note.Comments = u"of another version"_s;
        return note;
    }
};

} // namespace

class testDeletions final : public QObject
{
    Q_OBJECT

private slots:
    void desktopNote();
    void stackedNote();
    void atTheLimit();
    void ends_data();
    void ends();
    void onlyTheLatest();
    void nothingDeletedNothingOffered();
};

/// The note is as it was, on the disk too, though the deletion had been written.
void testDeletions::desktopNote()
{
    Fixture t;
    const qint32 tag = modCreateNote::CreateNote(t.f.program, t.full(), Home::Desktop, NoteCreateMode::Load);
    modForms::SaveAllNotes(t.f.program);
    t.f.at(tag)->setLocked(tag, false);
    const clsNoteProps before = *t.f.program.forms.recordOf(tag);
    t.deleteNote(tag);
    QVERIFY(t.f.at(tag) == nullptr && t.f.stored().empty());
    QVERIFY(t.line() != nullptr && t.line()->isVisible());
    QTest::keyClick(t.line(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(t.line() == nullptr && t.f.at(tag) != nullptr);
    QCOMPARE(*t.f.program.forms.recordOf(tag), before);
    QVERIFY(t.f.isLockedOnDesktop(tag) && t.f.at(tag)->isVisible());
    QCOMPARE(t.f.stored().size(), 1U);
    t.f.test.clock.advance(120);
    QCOMPARE(t.f.test.sound.played, QStringList(before.SoundFile));
}

/// It comes back between its neighbours and is shown.
void testDeletions::stackedNote()
{
    Fixture t;
    t.f.addAll({u"a"_s, u"b"_s, u"c"_s});
    t.f.tabs.setCurrentIndex(1);
    t.f.type(1, u"typed"_s);
    t.f.test.prompts.expect(Answer::Ok);
    t.f.choose("mnuDelete");
    QCOMPARE(t.f.captions(), QStringList({u"a"_s, u"c"_s}));
    t.f.addAll({u"d"_s});
    t.f.stack.activateWindow();
    QTest::keyClick(&t.f.stack, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.f.captions(), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    QCOMPARE(t.f.tabs.currentIndex(), 1);
    QVERIFY(t.f.program.forms.recordOf(2)->Data.contains(u"typed"_s));
    modForms::SaveAllNotes(t.f.program);
    QCOMPARE(t.f.stored().size(), 4U);
}

void testDeletions::atTheLimit()
{
    Fixture t;
    const qint32 tag = t.f.create(u"one"_s)->Tag();
    t.f.program.NoteCounter = modCreateNote::MostNotes;
    t.deleteNote(tag);
    press(*t.line(), "cmdAction");
    QVERIFY(t.f.at(tag) != nullptr);
}

void testDeletions::ends_data()
{
    QTest::addColumn<std::function<void(Fixture &)>>("end");
    const auto row = [](const char *name, const std::function<void(Fixture &)> &end) { QTest::newRow(name) << end; };
    row("its time", [](Fixture &t) { t.line()->findChild<QTimer *>(u"timEnd"_s)->start(0); });
    row("Escape", [](Fixture &t) { QTest::keyClick(t.line(), Qt::Key_Escape); });
    row("its cross", [](Fixture &t) { press(*t.line(), "cmdClose"); });
    row("closed by the window manager", [](Fixture &t) { t.line()->close(); });
    row("the end of the program", [](Fixture &t) { modForms::CloseAllWindows(t.f.program); });
}

void testDeletions::ends()
{
    QFETCH(std::function<void(Fixture &)>, end);
    Fixture t;
    t.deleteNote(t.f.create(u"one"_s)->Tag());
    const QPointer<QuietLine> line = t.line();
    end(t);
    QTRY_VERIFY(t.line() == nullptr);
    NoteFixture::deleteUnloaded();
    QVERIFY(line == nullptr && t.f.program.forms.tags().empty());
}

void testDeletions::onlyTheLatest()
{
    Fixture t;
    const qint32 first = t.f.create(u"one"_s)->Tag();
    const qint32 second = t.f.create(u"two"_s)->Tag();
    t.deleteNote(first);
    t.deleteNote(second);
    press(*t.line(), "cmdAction");
    QVERIFY(t.line() == nullptr);
    QCOMPARE(t.f.program.forms.tags(), std::vector<qint32>{second});
}

void testDeletions::nothingDeletedNothingOffered()
{
    Fixture t;
    const qint32 tag = t.f.create(u"one"_s)->Tag();
    t.f.test.prompts.expect(Answer::Cancel);
    NoteFixture::choose(*t.f.at(tag), "mnuDelete");
    QVERIFY(t.f.at(tag) != nullptr && t.line() == nullptr);
    QVERIFY(!modForms::IsDialogShowing(t.f.program));
}

QTEST_MAIN(testDeletions)
#include "testDeletions.moc"
