// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "notestack/StackFixture.h"

#include <QCheckBox>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

namespace
{

/// The record as it is stored, but for its place.
QByteArray bytes(clsNoteProps note)
{
    note.NoteStackOn = false;
    return modStreams::EncodeNoteRecord(note);
}

using Answering = void (*)(QDialog &);

} // namespace

class testStackMoves final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void thereAndBack();
    void allAtOnce();
    void cancelledSaveKeepsTheMarks();
    void alarmBringsToTheDesktop();
    void alarmBehindADialog_data();
    void alarmBehindADialog();
    void editOutlivesAnotherNotesAlarm();
    void typedTitleIsKept_data();
    void typedTitleIsKept();
    void deletedWhereItLives();
    void hundredLargeNotes();

private:
    Program &program() { return m_fixture->program; }
    clsNoteProps *recordOf(qint32 tag) { return program().forms.recordOf(tag); }
    std::unique_ptr<StackFixture> m_fixture;
};

void testStackMoves::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<StackFixture>();
}

void testStackMoves::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testStackMoves::thereAndBack()
{
    clsNoteProps note = m_fixture->protectedRecord(QString(u'\0') + u"a\r\n&b"_s, false, false);
    note.FrmLeft = note.FrmTop = 3000;
    note.FrmScrolledOn = note.OnTopOn = note.ToolBarOn = true;
    note.FrmHeightBefore = 2222;
    note.FontSize = 0.25F;
    note.AlarmDateMonth = 77;
    note.Comments = u"kept"_s;
    const qint32 tag = m_fixture->create(note, NoteCreateMode::Load)->Tag();
    m_fixture->addAll({u"one"_s, u"two"_s});
    modForms::SaveAllNotes(program());
    const QByteArray before = bytes(*recordOf(tag));
    for (int move = 1; move <= 20; ++move) {
        const bool toStack = move % 2 == 1;
        const int replacements = program().file.replacements;
        if (toStack)
            m_fixture->at(tag)->ToTheNoteStack();
        else
            m_fixture->choose("mnuDesktop1");
        QCOMPARE(program().file.replacements, replacements + 1);
        QCOMPARE(bytes(*recordOf(tag)), before);
        QCOMPARE(program().forms.note(tag) == nullptr, toStack);
        const auto stored = m_fixture->stored();
        QCOMPARE(stored.size(), size_t(3));
        QCOMPARE(bytes(stored[0]), before);
        QCOMPARE(stored[0].NoteStackOn, toStack);
        QTest::qWait(1);
    }
    QVERIFY(!modForms::hasUnsavedNotes(program()));
}

void testStackMoves::allAtOnce()
{
    for (int k = 1; k <= 12; ++k)
        m_fixture->add(k == 6 ? m_fixture->protectedRecord(u"6"_s, false, true)
                              : m_fixture->record(QString::number(k)));
    m_fixture->tabs.setCurrentIndex(2);
    m_fixture->type(2, u" typed"_s);
    m_fixture->test.prompts.expect(Answer::Ok);
    m_fixture->stack.TransferAllToDesktop();
    QCOMPARE(m_fixture->test.prompts.last.text, u"Sorry, this is a locked quillet."_s);
    QStringList order;
    for (Form *note : program().forms.notes())
        order.append(QString::number(note->holder()->tags().front()));
    QCOMPARE(order.join(u' '), u"3 4 5 7 8 9 10 11 12 2 1"_s);
    QCOMPARE(m_fixture->captions(), QStringList(u"6"_s));
    QCOMPARE(program().file.replacements, 1);
    QCOMPARE(m_fixture->stored().size(), size_t(11));
    modForms::TransferAllToNoteStack(program());
    QCOMPARE(program().file.replacements, 2);
    QCOMPARE(m_fixture->captions().join(u' '), u"6 "_s + order.join(u' '));
    QCOMPARE(recordOf(3)->Data, u"3 typed"_s);
    QVERIFY(program().forms.notes().empty());
}

void testStackMoves::cancelledSaveKeepsTheMarks()
{
    m_fixture->addAll({u"1"_s, u"2"_s, u"3"_s});
    QTimer::singleShot(0, qApp, [this] { program().forms.find(formNames::Status)->window()->close(); });
    modForms::SaveAllWithProgress(program());
    QCOMPARE(m_fixture->stored().size() + modForms::unsavedTags(program()).size(), size_t(3));
    QVERIFY(!modForms::unsavedTags(program()).empty());
    m_fixture->home.spoilDataFile();
    m_fixture->test.prompts.expect(Answer::Ok);
    modForms::SaveAllNotes(program());
    QCOMPARE(modForms::unsavedTags(program()).size(), size_t(3));
    m_fixture->home.healDataFile();
}

void testStackMoves::alarmBringsToTheDesktop()
{
    const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"due"_s)));
    const qint32 locked = m_fixture->add(m_fixture->alarmed(m_fixture->protectedRecord(u"shut"_s, false, true)));
    const qint32 edited = m_fixture->add(m_fixture->record(u"edited"_s));
    m_fixture->type(2, u" typed"_s);
    m_fixture->test.clock.advance(59);
    QCOMPARE(m_fixture->stack.noteCount(), 3);
    m_fixture->test.clock.advance(1);
    QCOMPARE(m_fixture->test.sound.played.size(), 2);
    QVERIFY(m_fixture->at(tag)->isVisible() && !recordOf(tag)->AlarmOn && m_fixture->isLockedOnDesktop(locked));
    m_fixture->stack.commitEditing();
    QCOMPARE(recordOf(edited)->Data, u"edited typed"_s);
    QCOMPARE(m_fixture->captions(), QStringList(u"edited"_s));
}

void testStackMoves::alarmBehindADialog_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<Answering>("answer");
    QTest::newRow("settings") << u"frmSettings"_s << u"mnuSettings"_s << Answering([](QDialog &dialog) {
        control<QCheckBox>(dialog, "chkFlash").click();
        control<QCheckBox>(dialog, "chkAlarm").setChecked(false);
        press(dialog, "cmdOK");
    });
    QTest::newRow("alarm") << u"frmAlarmSettings"_s << u"mnuAlarm"_s << Answering([](QDialog &dialog) {
        control<QCheckBox>(dialog, "chkFlash").click();
        control<QCheckBox>(dialog, "chkAlarm").setChecked(false);
        press(dialog, "OKButton");
    });
}

void testStackMoves::alarmBehindADialog()
{
    QFETCH(Answering, answer);
    QFETCH(QString, dialog);
    QFETCH(QString, entry);
    const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"due"_s)));
    const bool flash = recordOf(tag)->FlashOn;
    answerDialog(dialog, [&](QDialog &opened) {
        m_fixture->test.clock.advance(60);
        QCOMPARE(m_fixture->test.sound.played.size(), 1);
        answer(opened);
    });
    m_fixture->choose(qPrintable(entry));
    QCOMPARE(recordOf(tag)->FlashOn, !flash);
    QTRY_VERIFY(m_fixture->at(tag)->isVisible());
    m_fixture->test.clock.advance(60);
    QCOMPARE(m_fixture->test.sound.played.size(), 1);
}

/// The note that is being edited stays chosen, whichever other one leaves.
void testStackMoves::editOutlivesAnotherNotesAlarm()
{
    const qint32 before = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"before"_s)));
    const qint32 edited = m_fixture->add(m_fixture->record(u"three"_s));
    m_fixture->add(m_fixture->record(u"behind"_s));
    m_fixture->tabs.setCurrentIndex(1);
    m_fixture->type(1, u" fo"_s);
    m_fixture->test.clock.advance(60);
    QVERIFY(m_fixture->at(before) != nullptr);
    QCOMPARE(m_fixture->tabs.currentIndex(), 0);
    auto &box = NoteFixture::control<QPlainTextEdit>(m_fixture->stack, "txtText(0)");
    QVERIFY(box.isVisible());
    QTest::keyClicks(&box, u"ur"_s);
    m_fixture->stack.commitEditing();
    QCOMPARE(recordOf(edited)->Data, u"three four"_s);
}

void testStackMoves::typedTitleIsKept_data()
{
    using Leaving = std::function<void(StackFixture &, qint32)>;
    QTest::addColumn<Leaving>("leave");
    QTest::newRow("to the desktop") << Leaving([](StackFixture &all, qint32 tag) { all.stack.moveAway(tag); });
    QTest::newRow("locked") << Leaving([](StackFixture &all, qint32) { all.stack.lockform(-1); });
    QTest::newRow("alarm") << Leaving([](StackFixture &all, qint32) { all.test.clock.advance(60); });
    QTest::newRow("a save") << Leaving([](StackFixture &all, qint32) { modForms::SaveAllNotes(all.program); });
}

void testStackMoves::typedTitleIsKept()
{
    QFETCH(std::function<void(StackFixture &, qint32)>, leave);
    const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"text"_s)));
    m_fixture->choose("mnuTitle");
    NoteFixture::control<QLineEdit>(m_fixture->stack, "txtTitle").setText(u"Typed"_s);
    leave(*m_fixture, tag);
    QCOMPARE(recordOf(tag)->TitleBarTitle, u"Typed"_s);
}

/// The question is answered after the alarm has moved the note.
void testStackMoves::deletedWhereItLives()
{
    const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"text"_s)));
    m_fixture->test.prompts.expect(Answer::Ok);
    m_fixture->test.prompts.whileOpen = [this, tag] {
        m_fixture->test.clock.advance(60);
        QVERIFY(m_fixture->at(tag) != nullptr);
    };
    m_fixture->choose("mnuDelete");
    QCOMPARE(recordOf(tag), nullptr);
    QVERIFY(m_fixture->stored().empty());
}

void testStackMoves::hundredLargeNotes()
{
    for (int k = 0; k < 100; ++k)
        m_fixture->add(m_fixture->record(u"0123456789\r\n"_s.repeated(500'000 / 12)));
    QCOMPARE(m_fixture->stack.noteCount(), 100);
    modForms::SaveAllNotes(program());
    m_fixture->tabs.setCurrentIndex(50);
    for (int k = 0; k < 100; ++k)
        modCreateNote::CreateNote(program(), {}, Home::NoteStack, NoteCreateMode::Move);
    QCOMPARE(m_fixture->stack.noteCount(), 200); // The limit does not refuse moves.
    {
        SaveBatch batch(program().file);
        while (m_fixture->stack.noteCount() > 0)
            m_fixture->stack.DeleteThisNote(0);
        QVERIFY(batch.end().ok());
    }
    QVERIFY(m_fixture->stored().empty());
}

QTEST_MAIN(testStackMoves)
#include "testStackMoves.moc"
