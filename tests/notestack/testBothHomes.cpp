// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsHiding.h"
#include "notestack/StackFixture.h"

#include <QAccessible>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using Modifiers = Qt::KeyboardModifiers;

/// Notes on the desktop and in the NoteStack: the keyboard, hiding them all, the desktop's colours.
class testBothHomes final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void typingBeginsTheEdit_data()
    {
        const Rows<int, Modifiers, QString, QString> row; // key, modifiers, written, result: empty when no edit begins
        row("a letter", Qt::Key_B, {}, u"b"_s, u"ab"_s);
        row("a capital", Qt::Key_B, Qt::ShiftModifier, u"B"_s, u"aB"_s);
        row("beyond the first plane", Qt::Key_unknown, {}, u"\U0001F600"_s, u"a\U0001F600"_s);
        row("Enter", Qt::Key_Return, {}, u"\r"_s, u"a"_s);
        row("a command", Qt::Key_B, Qt::AltModifier, u"b"_s, {});
        row("a control sign", Qt::Key_Backspace, {}, u"\b"_s, {});
    }

    void typingBeginsTheEdit()
    {
        const auto [key, modifiers, written, result] = fetchRow<int, Modifiers, QString, QString>();
        m_fixture->add(m_fixture->record(u"a"_s));
        for (QWidget *window : std::initializer_list<QWidget *>{m_fixture->create(u"a"_s), &m_fixture->stack}) {
            QKeyEvent press(QEvent::KeyPress, key, modifiers, written);
            QCoreApplication::sendEvent(window, &press);
            const auto *box = window->findChild<QPlainTextEdit *>();
            QCOMPARE(box != nullptr && box->isVisible(), !result.isEmpty());
            QCOMPARE(box != nullptr ? box->toPlainText() : QString(), result);
        }
    }

    void typingOnProtectedNotes()
    {
        frmNoteStack &stack = m_fixture->stack;
        m_fixture->add(m_fixture->protectedRecord(u"the title, zebra"_s, false, true));
        QTest::keyClick(&stack, Qt::Key_A);
        QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(u"zebra"_s));
        const qint32 tag = m_fixture->add(m_fixture->protectedRecord(u"kept"_s, true, false));
        NoteFixture::answerPassword(u"right"_s);
        QTest::keyClick(&stack, Qt::Key_A);
        stack.commitEditing();
        QCOMPARE(m_fixture->program.forms.recordOf(tag)->Data, u"kepta"_s);
    }

    /// A new note is given its title, then its text, without the mouse.
    void titleGivesTheFocusBack()
    {
        m_fixture->program.ProgramOptions.TitleBarOn = true;
        frmNote *note = m_fixture->create(QString());
        for (const QString &typed : {u"List\r"_s, u"m"_s, u"ilk"_s})
            QTest::keyClicks(note->focusWidget(), typed);
        QTest::keyClick(note->focusWidget(), Qt::Key_Escape);
        QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, u"List"_s);
        QCOMPARE(note->GetThisNoteProps()->Data, u"milk"_s);
        QCOMPARE(note->focusWidget(), note);
    }

    void fontSize_data()
    {
        const Rows<float, Qt::Key, float> row; // before, key, after
        row("larger", 9.5F, Qt::Key_Plus, 10.5F);
        row("smaller", 9.5F, Qt::Key_Minus, 8.5F);
        row("as new notes", 30.0F, Qt::Key_0, 9.0F);
        row("largest", 72.0F, Qt::Key_Equal, 72.0F);
        row("larger than steps lead", 100.0F, Qt::Key_Plus, 100.0F);
        row("back from there", 100.0F, Qt::Key_Minus, 99.0F);
        row("no number", std::numeric_limits<float>::quiet_NaN(), Qt::Key_Plus, 10.0F);
    }

    void fontSize()
    {
        const auto [before, key, after] = fetchRow<float, Qt::Key, float>();
        clsNoteProps record = m_fixture->record(u"text"_s);
        record.FontSize = before;
        const qint32 stacked = m_fixture->add(record);
        frmNote *note = m_fixture->create(record);
        QTest::keyClick(&m_fixture->stack, key, Qt::ControlModifier);
        // While it is edited too.
        QTest::keyClick(&NoteFixture::edit(*note), key, Qt::ControlModifier);
        QCOMPARE(m_fixture->program.forms.recordOf(stacked)->FontSize, after);
        QCOMPARE(note->GetThisNoteProps()->FontSize, after);
        QCOMPARE(NoteFixture::edit(*note).font().pointSizeF(), static_cast<double>(after));
    }

    void fontWheel()
    {
        frmNote *note = m_fixture->create(m_fixture->protectedRecord(u"a\r\nb\r\nc"_s, false, false));
        const auto sizeAfter = [note](QWidget &over, int steps) {
            QWheelEvent event({5, 5}, over.mapToGlobal(QPointF(5, 5)), {}, {0, steps}, Qt::NoButton,
                              Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&over, &event);
            return note->GetThisNoteProps()->FontSize;
        };
        auto &text = control<QWidget>(*note, "lblDisplay");
        // A touch pad tells parts of a notch.
        for (const float expected : {9.0F, 10.0F, 11.0F})
            QCOMPARE(sizeAfter(text, 80), expected);
        QCOMPARE(sizeAfter(*NoteFixture::edit(*note).viewport(), -120), 10.0F);
        note->commitEditing();
        note->GetThisNoteProps()->PwdReadonlyOn = true;
        QCOMPARE(sizeAfter(text, 120), 10.0F);
    }

    void moveAndSize_data()
    {
        const Rows<Modifiers, bool, QRect> row; // modifiers, rolled, result
        row("moved", Qt::ControlModifier, false, QRect(110, 110, 200, 150));
        row("sized", Qt::ShiftModifier, false, QRect(100, 100, 210, 160));
        row("rolled up", Qt::ShiftModifier, true, QRect(100, 100, 210, 20));
    }

    void moveAndSize()
    {
        const auto [modifiers, rolled, result] = fetchRow<Modifiers, bool, QRect>();
        frmNote *note = m_fixture->create(u"text"_s);
        note->setGeometry(100, 100, 200, 150);
        if (rolled)
            note->ScrollForm();
        const QRect before = note->geometry();
        const Twips &twips = m_fixture->program.twips;
        QTest::keyClick(note, Qt::Key_Right, modifiers);
        QTest::keyClick(note, Qt::Key_Down, modifiers);
        QCOMPARE(note->geometry(), result);
        QCOMPARE(twips.toPixels(note->GetThisNoteProps()->FrmWidth), note->width());
        QCOMPARE(twips.toPixels(note->GetThisNoteProps()->FrmLeft), note->x());
        QTest::keyClick(note, Qt::Key_Escape);
        QCOMPARE(note->geometry(), before);
        QCOMPARE(twips.toPixels(note->GetThisNoteProps()->FrmTop), note->y());
        // However long it is pressed, the note can still be reached, and is no smaller than a note can be.
        for (int i = 0; i < 300; ++i)
            QTest::keyClick(note, Qt::Key_Left, modifiers);
        QVERIFY(note->screen()->availableGeometry().intersects(note->geometry()) && note->width() > 20);
    }

    void toTheOtherHome()
    {
        const QPointer<frmNote> note = m_fixture->create(u"text"_s);
        const qint32 tag = note->Tag();
        QTest::keyClick(note, Qt::Key_W, Qt::ControlModifier);
        m_fixture->deleteUnloaded();
        QVERIFY(note == nullptr);
        QCOMPARE(m_fixture->stack.tags(), std::vector{tag});
        QTest::keyClick(&m_fixture->stack, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(m_fixture->at(tag) != nullptr);
    }

    void overlayCanBePressed()
    {
        frmNote *note = m_fixture->create(m_fixture->protectedRecord(u"text"_s, false, true));
        auto *access = QAccessible::queryAccessibleInterface(&control<QLabel>(*note, "lblPassword"));
        QVERIFY(access->text(QAccessible::Name).startsWith(u"This Quillet is locked."));
        NoteFixture::answerPassword(u"right"_s);
        access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!NoteFixture::isLocked(*note));
    }

    void hidingBringsBackWhatItHid()
    {
        frmNote *first = m_fixture->create(u"first"_s);
        frmNote *second = m_fixture->create(u"second"_s);
        first->move(300, 200);
        m_fixture->stack.hide();
        QTest::keyClicks(&NoteFixture::edit(*second), u" typed"_s);
        hideOrShow();
        QVERIFY(!first->isVisible() && !second->isVisible());
        QCOMPARE(second->GetThisNoteProps()->Data, u"second typed"_s);
        second->ToTheNoteStack();
        m_fixture->deleteUnloaded();
        hideOrShow();
        QVERIFY(first->isVisible() && !m_fixture->stack.isVisible());
        QCOMPARE(first->pos(), QPoint(300, 200));
        hideOrShow();
        QVERIFY(!first->isVisible());
    }

    void whatIsSeenThoughAllAreHidden()
    {
        frmNote *hidden = m_fixture->create(u"hidden"_s);
        const frmNote *alarmed = m_fixture->create(m_fixture->alarmed(m_fixture->record(u"alarmed"_s)));
        hideOrShow();
        modForms::ShowNoteWindows(m_fixture->program); // A dialog went.
        QVERIFY(!alarmed->isVisible() && !hidden->isVisible());
        QVERIFY(m_fixture->create(u"new"_s)->isVisible());
        m_fixture->test.clock.advance(120);
        QVERIFY(alarmed->isVisible() && !hidden->isVisible());
        // The second time brings back the rest.
        hideOrShow();
        QVERIFY(hidden->isVisible() && alarmed->isVisible());
        hidden->hide();
        modForms::ShowNoteWindows(m_fixture->program);
        QVERIFY(hidden->isVisible());
    }

    void nothingOfHidingIsStored()
    {
        const frmNote *note = m_fixture->create(u"text"_s);
        modForms::SaveAllNotes(m_fixture->program);
        hideOrShow();
        QVERIFY(!modForms::hasUnsavedNotes(m_fixture->program));
        QVERIFY(!note->isVisible() && !m_fixture->stack.isVisible());
        QVERIFY(frmNoteStack::wasShown(m_fixture->program));
        m_fixture->stack.keepPlace();
        QVERIFY(frmNoteStack::wasShown(m_fixture->program));
    }

    void followTheDesktopsColours_data()
    {
        const Rows<qint32, QColor> row; // paper, shown
        row("the desktop's", qint32(0x80000005), QColor(10, 20, 30));
        row("its own", 0x00C0B0A0, QColor(0xA0, 0xB0, 0xC0));
    }

    void followTheDesktopsColours()
    {
        const auto [paper, shown] = fetchRow<qint32, QColor>();
        clsNoteProps record = m_fixture->record(u"text"_s);
        record.BackColor = paper;
        frmNote *note = m_fixture->create(record);
        m_fixture->add(record);
        const QPalette before = QApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Base, QColor(10, 20, 30));
        QApplication::setPalette(dark);
        QCoreApplication::processEvents();
        const auto paperOf = [](QWidget &window, const char *text) {
            const auto &body = control<QWidget>(window, text);
            return window.grab().toImage().pixelColor(body.mapTo(&window, body.rect().bottomRight() - QPoint(30, 30)));
        };
        const QColor onDesktop = paperOf(*note, "lblDisplay");
        const QColor inStack = paperOf(m_fixture->stack, "lblDisplay(0)");
        // The text that is edited, too.
        const QColor edited = NoteFixture::edit(*note).palette().color(QPalette::Base);
        QApplication::setPalette(before);
        QCOMPARE((QList{onDesktop, inStack, edited}), (QList{shown, shown, shown}));
        QVERIFY(before.color(QPalette::Base) != shown);
        QCOMPARE(note->GetThisNoteProps()->BackColor, paper);
    }

private:
    void hideOrShow() { modForms::ShowOrHideAll(m_fixture->program); }

    std::optional<StackFixture> m_fixture;
};

QTEST_MAIN(testBothHomes)
#include "testBothHomes.moc"
