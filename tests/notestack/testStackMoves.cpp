// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "notestack/StackFixture.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace
{

/// The record as it is stored, but for its place.
QByteArray bytes(clsNoteProps note)
{
    note.NoteStackOn = false;
    return modStreams::EncodeNoteRecord(note);
}

using Leaving = void (*)(StackFixture &, qint32);

} // namespace

class testStackMoves final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void thereAndBack()
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

    void allAtOnce()
    {
        for (int k = 1; k <= 12; ++k)
            m_fixture->add(k == 6 ? m_fixture->protectedRecord(u"6"_s, false, true)
                                  : m_fixture->record(QString::number(k)));
        m_fixture->tabs.setCurrentIndex(2);
        m_fixture->type(2, u" typed"_s);
        QCOMPARE(m_fixture->boxOf([this] { m_fixture->stack.TransferAllToDesktop(); }).text,
                 u"Sorry, this is a locked quillet."_s);
        QStringList order;
        for (Form *note : program().forms.notes())
            order.append(QString::number(note->holder()->tags().front()));
        QCOMPARE(order.join(u' '), u"3 4 5 7 8 9 10 11 12 2 1"_s);
        QCOMPARE(m_fixture->captions(), QStringList(u"6"_s));
        QCOMPARE(program().file.replacements, 1);
        QCOMPARE(m_fixture->stored().size(), size_t(11));
        program().NoteCounter = modCreateNote::MostNotes; // The limit does not refuse moves.
        modForms::TransferAllToNoteStack(program());
        QCOMPARE(program().file.replacements, 2);
        QCOMPARE(m_fixture->captions().join(u' '), u"6 "_s + order.join(u' '));
        QCOMPARE(recordOf(3)->Data, u"3 typed"_s);
        QVERIFY(program().forms.notes().empty());
    }

    void cancelledSaveKeepsTheMarks()
    {
        m_fixture->addAll({u"1"_s, u"2"_s, u"3"_s});
        QTimer::singleShot(0, qApp, [this] { program().forms.find(formNames::Status)->window()->close(); });
        modForms::SaveAllWithProgress(program());
        QCOMPARE(m_fixture->stored().size() + modForms::unsavedTags(program()).size(), size_t(3));
        QVERIFY(!modForms::unsavedTags(program()).empty());
        m_fixture->home.spoilDataFile();
        m_fixture->boxOf([this] { modForms::SaveAllNotes(program()); });
        QCOMPARE(modForms::unsavedTags(program()).size(), size_t(3));
        m_fixture->home.healDataFile();
    }

    /// The note that is being edited stays chosen, whichever other ones leave.
    void alarmBringsToTheDesktop()
    {
        const qint32 due = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"due"_s)));
        const qint32 locked = m_fixture->add(m_fixture->alarmed(m_fixture->protectedRecord(u"shut"_s, false, true)));
        const qint32 edited = m_fixture->add(m_fixture->record(u"three"_s));
        m_fixture->addAll({u"behind"_s});
        m_fixture->tabs.setCurrentIndex(2);
        m_fixture->type(2, u" fo"_s);
        m_fixture->test.clock.advance(59);
        QCOMPARE(m_fixture->stack.noteCount(), 4);
        m_fixture->test.clock.advance(1);
        QCOMPARE(m_fixture->test.sound.played.size(), 2);
        QVERIFY(m_fixture->at(due)->isVisible() && !recordOf(due)->AlarmOn);
        QVERIFY(NoteFixture::isLocked(*m_fixture->at(locked)));
        QCOMPARE(m_fixture->tabs.currentIndex(), 0);
        auto &box = control<QPlainTextEdit>(m_fixture->stack, "txtText(0)");
        QVERIFY(box.isVisible());
        QTest::keyClicks(&box, u"ur"_s);
        m_fixture->stack.commitEditing();
        QCOMPARE(recordOf(edited)->Data, u"three four"_s);
        QCOMPARE(m_fixture->captions(), QStringList({u"three"_s, u"behind"_s}));
    }

    void alarmBehindADialog_data()
    {
        const Rows<QString, QByteArray, QByteArray> row; // dialog, its entry in the menu, its button
        row("settings", u"frmSettings"_s, "mnuSettings", "cmdOK");
        row("alarm", u"frmAlarmSettings"_s, "mnuAlarm", "OKButton");
    }

    void alarmBehindADialog()
    {
        const auto [dialog, entry, button] = fetchRow<QString, QByteArray, QByteArray>();
        const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"due"_s)));
        const bool flash = recordOf(tag)->FlashOn;
        answerDialog(dialog, [this, &ok = button](QDialog &opened) {
            m_fixture->test.clock.advance(60);
            QCOMPARE(m_fixture->test.sound.played.size(), 1);
            control<QCheckBox>(opened, "chkFlash").click();
            control<QCheckBox>(opened, "chkAlarm").setChecked(false);
            press(opened, ok.constData());
        });
        m_fixture->choose(entry.constData());
        QCOMPARE(recordOf(tag)->FlashOn, !flash);
        QTRY_VERIFY(m_fixture->at(tag)->isVisible());
        m_fixture->test.clock.advance(60);
        QCOMPARE(m_fixture->test.sound.played.size(), 1);
    }

    void typedTitleIsKept_data()
    {
        const Rows<Leaving> row; // leave
        row("to the desktop", [](StackFixture &all, qint32 tag) { all.stack.moveAway(tag); });
        row("locked", [](StackFixture &all, qint32) { all.stack.lockform(-1); });
        row("alarm", [](StackFixture &all, qint32) { all.test.clock.advance(60); });
        row("a save", [](StackFixture &all, qint32) { modForms::SaveAllNotes(all.program); });
    }

    void typedTitleIsKept()
    {
        const auto [leave] = fetchRow<Leaving>();
        const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"text"_s)));
        m_fixture->choose("mnuTitle");
        control<QLineEdit>(m_fixture->stack, "txtTitle").setText(u"Typed"_s);
        leave(*m_fixture, tag);
        QCOMPARE(recordOf(tag)->TitleBarTitle, u"Typed"_s);
    }

    /// The question is answered after the alarm has moved the note.
    void deletedWhereItLives()
    {
        const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->record(u"text"_s)));
        m_fixture->test.prompts.whileOpen = [this, tag] {
            m_fixture->test.clock.advance(60);
            QVERIFY(m_fixture->at(tag) != nullptr);
        };
        m_fixture->boxOf([this] { m_fixture->choose("mnuDelete"); });
        QCOMPARE(recordOf(tag), nullptr);
        QVERIFY(m_fixture->stored().empty());
    }

private:
    Program &program() { return m_fixture->program; }
    clsNoteProps *recordOf(qint32 tag) { return program().forms.recordOf(tag); }
    std::optional<StackFixture> m_fixture;
};

QTEST_MAIN(testStackMoves)
#include "testStackMoves.moc"
