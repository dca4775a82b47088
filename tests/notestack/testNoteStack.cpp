// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsJournal.h"
#include "notestack/StackFixture.h"

#include <QMenu>
#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

namespace
{
using Act = void (*)(StackFixture &);
}

class testNoteStack final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void emptyState();
    void deletes_data();
    void deletes();
    void captions_data();
    void captions();
    void leavingCommits_data();
    void leavingCommits();
    void lockedTextIsNowhere();
    void orderIsKept();
    void orderOutlivesACrash();
    void blankTitleIsTold();
    void locks();
    void wrongPasswords_data();
    void wrongPasswords();
    void menus_data();
    void menus();

private:
    std::unique_ptr<StackFixture> m_fixture;
};

void testNoteStack::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<StackFixture>();
}

void testNoteStack::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testNoteStack::emptyState()
{
    frmNoteStack &stack = m_fixture->stack;
    for (const char *name : {"imgDelete", "imgToDesktop", "imgSettings", "imgAlarm", "imgPassword", "imgMenu"})
        m_fixture->click(name);
    QTest::qWait(250); // longer than a button is seen pressed
    QTest::keyClick(&stack, Qt::Key_F2);
    QTest::keyClick(&stack, Qt::Key_Tab, Qt::ControlModifier);
    stack.TransferAllToDesktop();
    stack.DeleteThisNote(-1);
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QCOMPARE(m_fixture->captions(), QStringList(QString()));
    QVERIFY(stack.NumOfQuillets() == 1 && stack.noteCount() == 0 && m_fixture->program.forms.notes().empty());
    const auto &empty = NoteFixture::control<QLabel>(stack, "lblEmpty");
    QVERIFY(empty.isVisible() && empty.text() == u"NoteStack is empty");
    m_fixture->click("imgAdd");
    QTRY_COMPARE(m_fixture->captions(), QStringList(u"1"_s));
    QVERIFY(stack.NumOfQuillets() == 1 && stack.noteCount() == 1 && !empty.isVisible());
}

void testNoteStack::deletes_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<int>("index");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("chosen");
    const QStringList four{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("first") << four << 0 << Answer::Ok << 0;
    QTest::newRow("middle") << four << 1 << Answer::Ok << 1;
    QTest::newRow("last") << four << 3 << Answer::Ok << 2;
    QTest::newRow("only") << QStringList(u"a"_s) << 0 << Answer::Ok << 0;
    QTest::newRow("cancelled") << four << 1 << Answer::Cancel << 1;
}

void testNoteStack::deletes()
{
    QFETCH(QStringList, before);
    QFETCH(int, index);
    QFETCH(Answer, answer);
    m_fixture->addAll(before);
    modForms::SaveAllNotes(m_fixture->program);
    m_fixture->tabs.setCurrentIndex(index);
    m_fixture->test.prompts.expect(answer);
    m_fixture->choose("mnuDelete");
    QCOMPARE(m_fixture->test.prompts.last.text, u"Delete note '%1' ?"_s.arg(before[index]));
    QStringList left = before;
    if (answer == Answer::Ok)
        left.removeAt(index);
    QTEST(m_fixture->tabs.currentIndex(), "chosen");
    QCOMPARE(m_fixture->stack.noteCount(), int(left.size()));
    QStringList stored;
    for (const clsNoteProps &note : m_fixture->stored())
        stored.prepend(note.Data);
    QCOMPARE(stored, left);
    NoteFixture::deleteUnloaded();
    QCOMPARE(m_fixture->captions(), left.isEmpty() ? QStringList(QString()) : left);
    for (int i = 0; i < left.size(); ++i)
        QCOMPARE(NoteFixture::control<QLabel>(m_fixture->stack, qPrintable(u"lblDisplay(%1)"_s.arg(i))).text(),
                 left[i]);
}

void testNoteStack::captions_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("fits");
    QTest::newRow("ampersands") << u"&a & b && c&"_s << true;
    QTest::newRow("blanks") << u"   "_s << true;
    QTest::newRow("right to left") << u"\u05E9\u05DC\u05D5\u05DD"_s << true;
    QTest::newRow("markup") << u"<b>x</b>"_s << true;
    QTest::newRow("combining") << u"e"_s + QString(3000, QChar(0x0301)) << true;
    QTest::newRow("emoji") << u"\U0001F600"_s.repeated(400) << false;
    QTest::newRow("200 000 characters") << QString(200'000, u'W') << false;
    QTest::newRow("control characters") << u"a\tb\u2028c\u0085d"_s << true;
}

void testNoteStack::captions()
{
    QFETCH(QString, title);
    QFETCH(bool, fits);
    clsNoteProps note = m_fixture->record(u"text"_s);
    note.TitleBarTitle = title;
    m_fixture->add(note);
    const QString caption = m_fixture->tabs.caption(0);
    if (fits)
        QCOMPARE(caption, title);
    QVERIFY(fits || (caption.endsWith(u"...") && title.startsWith(caption.chopped(3)) && caption.isValidUtf16()));
    QVERIFY(m_fixture->tabs.fontMetrics().horizontalAdvance(caption) <= NoteTabs::widestCaption());
    QVERIFY(m_fixture->tabs.tabToolTip(0).contains(title.left(1000).toHtmlEscaped().replace(u"&amp;"_s, u"&"_s)));
    m_fixture->stack.grab();
    // In the list of all a tab would begin a second column.
    QString listed;
    QTimer::singleShot(0, &m_fixture->stack, [&listed] {
        auto *list = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        listed = list->actions().constFirst()->text();
        list->close();
    });
    m_fixture->click("cmdTabList");
    QVERIFY(!listed.isEmpty() && std::none_of(listed.begin(), listed.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line;
    }));
}

void testNoteStack::leavingCommits_data()
{
    QTest::addColumn<Act>("leave");
    const auto row = [](const char *name, Act leave) { QTest::newRow(name) << leave; };
    row("other tab", [](StackFixture &f) { f.tabs.setCurrentIndex(0); });
    row("keyboard",
        [](StackFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier); });
    row("new note", [](StackFixture &f) { f.add(f.record(u"new"_s)); });
    row("save", [](StackFixture &f) { modForms::SaveAllNotes(f.program); });
    row("desktop", [](StackFixture &f) { f.choose("mnuDesktop1"); });
    row("lock", [](StackFixture &f) { f.choose("mnuLocked"); });
    row("close", [](StackFixture &f) { f.stack.close(); });
}

void testNoteStack::leavingCommits()
{
    QFETCH(Act, leave);
    m_fixture->addAll({u"other"_s, u"old"_s});
    QVERIFY(QTest::qWaitForWindowActive(&m_fixture->stack));
    m_fixture->type(1, u" and typed"_s);
    leave(*m_fixture);
    QCOMPARE(m_fixture->program.forms.recordOf(2)->Data, u"old and typed"_s);
    QCOMPARE(m_fixture->program.forms.recordOf(1)->Data, u"other"_s);
}

void testNoteStack::lockedTextIsNowhere()
{
    const QString secret = u"the secret"_s;
    clsNoteProps note = m_fixture->protectedRecord(secret, false, true);
    note.TitleBarTitle = u"title"_s;
    note.BackPicOn = true;
    note.PicFile = u"/no/such.bmp"_s;
    m_fixture->add(m_fixture->record(u"other"_s));
    m_fixture->test.prompts.whileOpen = [&] {
        QVERIFY(m_fixture->isUnseen(secret));
        m_fixture->tabs.setCurrentIndex(0);
        m_fixture->tabs.setCurrentIndex(1);
        QVERIFY(m_fixture->isUnseen(secret));
    };
    m_fixture->test.prompts.expect(Answer::Ok); // the picture that is missing
    const qint32 tag = m_fixture->add(note);
    QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(secret));
    const auto unlock = [&] {
        answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) {
            control<QLineEdit>(prompt, "txtPwd").setText(u"right"_s);
            press(prompt, "OKButton");
        });
        m_fixture->click("lblPassword");
    };
    unlock();
    QVERIFY(!m_fixture->isLocked() && !m_fixture->isUnseen(secret));
    m_fixture->click("lblDisplay(1)");
    m_fixture->choose("mnuLocked");
    QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(secret));
    m_fixture->stack.recordChanged(tag);
    QVERIFY(m_fixture->isUnseen(secret));
    m_fixture->click("lblDisplay(1)");
    answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) { prompt.reject(); });
    m_fixture->test.prompts.expect(Answer::Ok);
    QTest::keyClick(&m_fixture->stack, Qt::Key_Return);
    QVERIFY(m_fixture->isLocked() && m_fixture->isUnseen(secret));
}

void testNoteStack::orderIsKept()
{
    m_fixture->addAll({u"a"_s, u"b"_s, u"c"_s});
    m_fixture->tabs.setCurrentIndex(1);
    modForms::SaveAllNotes(m_fixture->program);
    m_fixture->stack.keepPlace();
    frmNoteStack next(m_fixture->program);
    next.Initialize();
    next.AddANote(m_fixture->record(u"new"_s));
    for (const qint32 tag : {3, 2, 1})
        next.AddANote(clsNoteProps(*m_fixture->stack.recordOf(tag)));
    next.restoreOrder();
    const auto &tabs = *next.findChild<NoteTabs *>();
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i)
        captions.append(tabs.caption(i));
    QCOMPARE(captions, QStringList({u"a"_s, u"b"_s, u"c"_s, u"new"_s}));
    QCOMPARE(tabs.currentIndex(), 1);
    QCOMPARE(NoteFixture::control<QLabel>(next, "lblDisplay(3)").text(), u"new"_s);
    QVERIFY(NoteFixture::control<QLabel>(next, "lblDisplay(1)").isVisibleTo(&next));
}

/// What was edited stands in the data file as it was before.
void testNoteStack::orderOutlivesACrash()
{
    Program &program = m_fixture->program;
    m_fixture->addAll({u"a"_s, u"b"_s, u"c"_s});
    modForms::SaveAllNotes(program);
    modForms::keepJournal(program);
    clsNoteProps &edited = *m_fixture->stack.recordOf(2);
    edited.Data = u"more"_s;
    edited.SaveTag = 1;
    modForms::settleJournal(program);
    frmNoteStack next(program);
    next.Initialize();
    QStringList found;
    const auto take = [&](clsNoteProps &&note) {
        found.append(note.Data);
        note.Tag = static_cast<qint32>(found.size());
        next.AddANote(note);
        return note.Tag;
    };
    modFileIO::LoadDataFile(program.file, {}, 100, take, {}, {}, program.clock().now());
    QCOMPARE(found, QStringList({u"c"_s, u"more"_s, u"a"_s}));
    next.restoreOrder();
    const auto &tabs = *next.findChild<NoteTabs *>();
    QCOMPARE(QStringList({tabs.caption(0), tabs.caption(1), tabs.caption(2)}), QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

void testNoteStack::blankTitleIsTold()
{
    m_fixture->addAll({u"a"_s, u"b"_s});
    m_fixture->choose("mnuTitle");
    NoteFixture::control<QLineEdit>(m_fixture->stack, "txtTitle").setText(u"  "_s);
    m_fixture->test.prompts.expect(Answer::Ok);
    m_fixture->tabs.setCurrentIndex(0);
    QTRY_VERIFY(m_fixture->test.prompts.isDone());
    QCOMPARE(m_fixture->captions(), QStringList({u"a"_s, u"b"_s}));
}

void testNoteStack::locks()
{
    const qint32 tag = m_fixture->add(m_fixture->protectedRecord(u"text"_s, false, true));
    QVERIFY(m_fixture->isLocked());
    m_fixture->add(m_fixture->record(u"other"_s));
    QVERIFY(!m_fixture->isLocked());
    m_fixture->tabs.setCurrentIndex(0);
    QVERIFY(m_fixture->isLocked());
    for (const char *name : {"imgDelete", "imgToDesktop", "imgSettings", "imgAlarm", "imgPassword"}) {
        m_fixture->test.prompts.expect(Answer::Ok);
        m_fixture->click(name);
        QTRY_VERIFY2(m_fixture->test.prompts.isDone(), name);
        QCOMPARE(m_fixture->test.prompts.last.text, u"Sorry, this is a locked quillet."_s);
    }
    answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) {
        control<QLineEdit>(prompt, "txtPwd").setText(u"right"_s);
        press(prompt, "OKButton");
    });
    m_fixture->click("lblPassword");
    m_fixture->tabs.setCurrentIndex(1);
    m_fixture->tabs.setCurrentIndex(0);
    QVERIFY(!m_fixture->isLocked());
    // Coming back from the desktop it is locked again.
    m_fixture->choose("mnuDesktop1");
    QVERIFY(m_fixture->isLockedOnDesktop(tag));
    m_fixture->at(tag)->ToTheNoteStack();
    QVERIFY(m_fixture->isLocked());
}

void testNoteStack::wrongPasswords_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("caption");
    const auto row = [](const char *text, const char *caption, Act act) {
        QTest::newRow(text) << act << QString::fromLatin1(text) << QString::fromLatin1(caption);
    };
    row("Authentication invalid.  Deletion failed.", "Deletion Failed", [](StackFixture &f) {
        f.test.prompts.expect(Answer::Ok);
        f.choose("mnuDelete");
    });
    row("Access to Settings failed.", "Access failed", [](StackFixture &f) { f.choose("mnuSettings"); });
    row("Access to Alarm functions failed.", "Access failed", [](StackFixture &f) { f.choose("mnuAlarm"); });
    row("Access to Password functions failed.", "Access failed", [](StackFixture &f) { f.choose("mnuPassword"); });
    row("Invalid password.  Access to note failed.", "Access failed", [](StackFixture &f) { f.choose("mnuTitle"); });
    row("Editing failed.", "Editing failed", [](StackFixture &f) { f.click("lblDisplay(0)"); });
}

/// While the password is asked for, the alarm of the same note comes due and takes it to the desktop.
void testNoteStack::wrongPasswords()
{
    QFETCH(Act, act);
    const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->protectedRecord(u"text"_s, true, false)));
    for (const bool alarm : {false, true}) {
        answerDialog(u"frmEnterPwd"_s, [this, alarm](QDialog &prompt) {
            if (alarm)
                m_fixture->test.clock.advance(60);
            control<QLineEdit>(prompt, "txtPwd").setText(u"wrong"_s);
            press(prompt, "OKButton");
        });
        QTimer::singleShot(0, qApp, [this] { m_fixture->test.prompts.expect(Answer::Ok); });
        act(*m_fixture);
        QTEST(m_fixture->test.prompts.last.text, "text");
        QTEST(m_fixture->test.prompts.last.caption, "caption");
        QCOMPARE(m_fixture->stack.noteCount(), alarm ? 0 : 1);
        QVERIFY(m_fixture->test.prompts.isDone());
    }
    QCOMPARE(m_fixture->at(tag)->GetThisNoteProps()->Data, u"text"_s);
    QCOMPARE(m_fixture->test.sound.played.size(), 1);
}

void testNoteStack::menus_data()
{
    QTest::addColumn<clsNoteProps>("note");
    QTest::addColumn<QString>("entries");
    const StackFixture fixture;
    const QString open =
        u"To DeskTop,Print,,Title,,Properties,Password%1,Alarm%2,Locked,,Actions,Settings,Send,E-mail,,"
        "Delete,Help"_s;
    clsNoteProps alarm = fixture.record(u"text"_s);
    alarm.AlarmOn = true;
    alarm.AlarmDateYear = 3000;
    QTest::newRow("plain") << fixture.record(u"text"_s) << open.arg(QString(), QString());
    QTest::newRow("alarm") << alarm << open.arg(QString(), u"+"_s);
    QTest::newRow("read-only") << fixture.protectedRecord(u"text"_s, true, false) << open.arg(u"+"_s, QString());
    QTest::newRow("locked") << fixture.protectedRecord(u"text"_s, true, true)
                            << u"(To DeskTop),(Print),,(Title),,Properties,(Password+),(Alarm),Locked+,,Actions,"
                               "(Settings),(Send),(E-mail),,(Delete),(Help)"_s;
}

void testNoteStack::menus()
{
    QFETCH(clsNoteProps, note);
    m_fixture->add(note);
    m_fixture->click("imgMenu");
    QStringList entries;
    const std::function<void(const QMenu &)> read = [&](const QMenu &menu) {
        for (const QAction *action : menu.actions()) {
            const QString entry = action->text() + (action->isChecked() ? u"+"_s : QString());
            entries.append(action->isEnabled() ? entry : u'(' + entry + u')');
            if (action->menu() != nullptr)
                read(*action->menu());
        }
    };
    read(NoteFixture::control<QMenu>(m_fixture->stack, "mnuPopup2"));
    QTEST(entries.join(u','), "entries");
    QApplication::activePopupWidget()->close();
    if (m_fixture->isLocked())
        return;
    m_fixture->click("lblDisplay(0)", Qt::RightButton);
    entries.clear();
    read(NoteFixture::control<QMenu>(m_fixture->stack, "mnuPopup"));
    QCOMPARE(entries.join(u','), note.PwdOn ? u"To DeskTop,Print,,Copy,(Paste)"_s : u"To DeskTop,Print,,Copy,Paste"_s);
    QApplication::activePopupWidget()->close();
}

QTEST_MAIN(testNoteStack)
#include "testNoteStack.moc"
