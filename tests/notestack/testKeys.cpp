// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackFixture.h"

#include <QAccessible>
#include <QWheelEvent>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// The keyboard on notes, in both homes.
class testKeys final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typingBeginsTheEdit_data();
    void typingBeginsTheEdit();
    void typingOnProtectedNotes();
    void titleGivesTheFocusBack();
    void fontSize_data();
    void fontSize();
    void fontWheel();
    void moveAndSize_data();
    void moveAndSize();
    void toTheOtherHome();
    void overlayCanBePressed();

private:
    std::unique_ptr<StackFixture> m_fixture;
};

void testKeys::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<StackFixture>();
}

void testKeys::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testKeys::typingBeginsTheEdit_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("result");
    constexpr Qt::KeyboardModifiers None = Qt::NoModifier;
    QTest::newRow("a letter") << int(Qt::Key_B) << None << u"b"_s << u"ab"_s;
    QTest::newRow("a capital") << int(Qt::Key_B) << Qt::KeyboardModifiers(Qt::ShiftModifier) << u"B"_s << u"aB"_s;
    QTest::newRow("beyond the first plane") << int(Qt::Key_unknown) << None << u"\U0001F600"_s << u"a\U0001F600"_s;
    QTest::newRow("Enter") << int(Qt::Key_Return) << None << u"\r"_s << u"a"_s;
    QTest::newRow("a command") << int(Qt::Key_B) << Qt::KeyboardModifiers(Qt::AltModifier) << u"b"_s << QString();
    QTest::newRow("a control sign") << int(Qt::Key_Backspace) << None << u"\b"_s << QString();
}

/// An empty result: no edit begins.
void testKeys::typingBeginsTheEdit()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, written);
    QFETCH(QString, result);
    frmNote *note = m_fixture->create(u"a"_s);
    m_fixture->add(m_fixture->record(u"a"_s));
    const std::array<std::pair<QWidget *, const char *>, 2> homes{
        {{note, "txtText"}, {&m_fixture->stack, "txtText(0)"}}};
    for (const auto &[window, name] : homes) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, written);
        QCoreApplication::sendEvent(window, &press);
        const auto *box = window->findChild<QPlainTextEdit *>(QLatin1String(name));
        QCOMPARE(box != nullptr && box->isVisible(), !result.isEmpty());
        if (box != nullptr)
            QCOMPARE(box->toPlainText(), result);
    }
}

/// In the prompt that opens next.
static void givePassword(const QString &typed)
{
    answerDialog(u"frmEnterPwd"_s, [typed](QDialog &dialog) {
        control<QLineEdit>(dialog, "txtPwd").setText(typed);
        press(dialog, "OKButton");
    });
}

void testKeys::typingOnProtectedNotes()
{
    m_fixture->add(m_fixture->protectedRecord(u"the title, zebra"_s, false, true));
    QTest::keyClick(&m_fixture->stack, Qt::Key_A);
    QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(u"zebra"_s));
    const qint32 tag = m_fixture->add(m_fixture->protectedRecord(u"kept"_s, true, false));
    givePassword(u"wrong"_s);
    m_fixture->test.prompts.expect(Answer::Ok);
    QTest::keyClick(&m_fixture->stack, Qt::Key_A);
    QCOMPARE(m_fixture->test.prompts.last.text, u"Editing failed."_s);
    givePassword(u"right"_s);
    QTest::keyClick(&m_fixture->stack, Qt::Key_A);
    m_fixture->stack.commitEditing();
    QCOMPARE(m_fixture->program.forms.recordOf(tag)->Data, u"kepta"_s);
}

/// A new note is given its title, then its text, without the mouse.
void testKeys::titleGivesTheFocusBack()
{
    m_fixture->program.ProgramOptions.TitleBarOn = true;
    frmNote *note = m_fixture->create(QString());
    QTest::keyClicks(note->focusWidget(), u"List"_s);
    QTest::keyClick(note->focusWidget(), Qt::Key_Return);
    QTest::keyClicks(note->focusWidget(), u"m"_s);
    QTest::keyClicks(note->focusWidget(), u"ilk"_s);
    QTest::keyClick(note->focusWidget(), Qt::Key_Escape);
    QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, u"List"_s);
    QCOMPARE(note->GetThisNoteProps()->Data, u"milk"_s);
    QCOMPARE(note->focusWidget(), note);
}

void testKeys::fontSize_data()
{
    QTest::addColumn<float>("before");
    QTest::addColumn<int>("key");
    QTest::addColumn<float>("after");
    QTest::newRow("larger") << 9.5F << int(Qt::Key_Plus) << 10.5F;
    QTest::newRow("smaller") << 9.5F << int(Qt::Key_Minus) << 8.5F;
    QTest::newRow("as new notes") << 30.0F << int(Qt::Key_0) << 9.0F;
    QTest::newRow("largest") << 72.0F << int(Qt::Key_Equal) << 72.0F;
    QTest::newRow("larger than steps lead") << 100.0F << int(Qt::Key_Plus) << 100.0F;
    QTest::newRow("back from there") << 100.0F << int(Qt::Key_Minus) << 99.0F;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << int(Qt::Key_Plus) << 10.0F;
}

void testKeys::fontSize()
{
    QFETCH(float, before);
    QFETCH(int, key);
    clsNoteProps record = m_fixture->record(u"text"_s);
    record.FontSize = before;
    const qint32 stacked = m_fixture->add(record);
    frmNote *note = m_fixture->create(record);
    note->SaveThisNote();
    QTest::keyClick(&m_fixture->stack, static_cast<Qt::Key>(key), Qt::ControlModifier);
    // While it is edited too.
    QTest::keyClick(&NoteFixture::edit(*note), static_cast<Qt::Key>(key), Qt::ControlModifier);
    QTEST(m_fixture->program.forms.recordOf(stacked)->FontSize, "after");
    QTEST(note->GetThisNoteProps()->FontSize, "after");
    QCOMPARE(NoteFixture::edit(*note).font().pointSizeF(), static_cast<double>(note->GetThisNoteProps()->FontSize));
    m_fixture->stack.SaveThisStackSys();
}

void testKeys::fontWheel()
{
    frmNote *note = m_fixture->create(m_fixture->protectedRecord(u"a\r\nb\r\nc"_s, false, false));
    const auto turn = [](QWidget &over, int steps) {
        QWheelEvent event({5, 5}, over.mapToGlobal(QPointF(5, 5)), {}, {0, steps}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&over, &event);
    };
    auto &text = NoteFixture::control<QWidget>(*note, "lblDisplay");
    // A touch pad tells parts of a notch.
    for (int i = 0; i < 3; ++i)
        turn(text, 80);
    QCOMPARE(note->GetThisNoteProps()->FontSize, 11.0F);
    turn(*NoteFixture::edit(*note).viewport(), -120);
    QCOMPARE(note->GetThisNoteProps()->FontSize, 10.0F);
    note->commitEditing();
    note->GetThisNoteProps()->PwdReadonlyOn = true;
    turn(text, 120);
    QCOMPARE(note->GetThisNoteProps()->FontSize, 10.0F);
}

void testKeys::moveAndSize_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("rolled");
    QTest::addColumn<QRect>("result");
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier, shift = Qt::ShiftModifier;
    QTest::newRow("moved") << ctrl << false << QRect(110, 110, 200, 150);
    QTest::newRow("sized") << shift << false << QRect(100, 100, 210, 160);
    QTest::newRow("rolled up") << shift << true << QRect(100, 100, 210, 20);
}

void testKeys::moveAndSize()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, rolled);
    frmNote *note = m_fixture->create(u"text"_s);
    note->setGeometry(100, 100, 200, 150);
    if (rolled)
        note->ScrollForm();
    const QRect before = note->geometry();
    QTest::keyClick(note, Qt::Key_Right, modifiers);
    QTest::keyClick(note, Qt::Key_Down, modifiers);
    QTEST(note->geometry(), "result");
    QCOMPARE(m_fixture->program.twips.toPixels(note->GetThisNoteProps()->FrmWidth), note->width());
    QCOMPARE(m_fixture->program.twips.toPixels(note->GetThisNoteProps()->FrmLeft), note->x());
    QTest::keyClick(note, Qt::Key_Escape);
    QCOMPARE(note->geometry(), before);
    QCOMPARE(m_fixture->program.twips.toPixels(note->GetThisNoteProps()->FrmTop), note->y());
    // However long it is pressed, the note can still be reached, and is no smaller than a note can be.
    for (int i = 0; i < 300; ++i)
        QTest::keyClick(note, Qt::Key_Left, modifiers);
    QVERIFY(note->screen()->availableGeometry().intersects(note->geometry()));
    QVERIFY(note->width() > 20);
}

void testKeys::toTheOtherHome()
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

void testKeys::overlayCanBePressed()
{
    frmNote *note = m_fixture->create(m_fixture->protectedRecord(u"text"_s, false, true));
    QAccessibleInterface *access =
        QAccessible::queryAccessibleInterface(&NoteFixture::control<QLabel>(*note, "lblPassword"));
    QVERIFY(access->text(QAccessible::Name).startsWith(u"This Quillet is locked."));
    givePassword(u"right"_s);
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!NoteFixture::control<QWidget>(*note, "fraPassword").isVisible());
}

QTEST_MAIN(testKeys)
#include "testKeys.moc"
