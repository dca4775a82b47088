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
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void emptyState()
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
        const auto &empty = control<QLabel>(stack, "lblEmpty");
        QVERIFY(empty.isVisible() && empty.text() == u"NoteStack is empty");
        m_fixture->click("imgAdd");
        QTRY_COMPARE(m_fixture->captions(), QStringList(u"1"_s));
        QVERIFY(stack.NumOfQuillets() == 1 && stack.noteCount() == 1 && !empty.isVisible());
    }

    void deletes_data()
    {
        const Rows<QStringList, int, Answer, int> row; // before, index, answer, chosen
        const QStringList four{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
        row("first", four, 0, Answer::Ok, 0);
        row("middle", four, 1, Answer::Ok, 1);
        row("last", four, 3, Answer::Ok, 2);
        row("only", QStringList(u"a"_s), 0, Answer::Ok, 0);
        row("cancelled", four, 1, Answer::Cancel, 1);
    }

    void deletes()
    {
        const auto [before, index, answer, chosen] = fetchRow<QStringList, int, Answer, int>();
        m_fixture->addAll(before);
        modForms::SaveAllNotes(m_fixture->program);
        m_fixture->tabs.setCurrentIndex(index);
        QCOMPARE(m_fixture->boxOf([this] { m_fixture->choose("mnuDelete"); }, answer).text,
                 u"Delete note '%1' ?"_s.arg(before[index]));
        QStringList left = before;
        if (answer == Answer::Ok)
            left.removeAt(index);
        QCOMPARE(m_fixture->tabs.currentIndex(), chosen);
        QCOMPARE(m_fixture->stack.noteCount(), int(left.size()));
        QStringList stored = m_fixture->storedTexts();
        std::reverse(stored.begin(), stored.end());
        QCOMPARE(stored, left);
        NoteFixture::deleteUnloaded();
        QCOMPARE(m_fixture->captions(), left.isEmpty() ? QStringList(QString()) : left);
        for (int i = 0; i < left.size(); ++i)
            QCOMPARE(control<QLabel>(m_fixture->stack, qPrintable(u"lblDisplay(%1)"_s.arg(i))).text(), left[i]);
    }

    void captions_data()
    {
        const Rows<QString, bool> row; // title, fits
        row("ampersands", u"&a & b && c&"_s, true);
        row("blanks", u"   "_s, true);
        row("right to left", u"\u05E9\u05DC\u05D5\u05DD"_s, true);
        row("markup", u"<b>x</b>"_s, true);
        row("combining", u"e"_s + QString(3000, QChar(0x0301)), true);
        row("emoji", u"\U0001F600"_s.repeated(400), false);
        row("200 000 characters", QString(200'000, u'W'), false);
        row("control characters", u"a\tb\u2028c\u0085d"_s, true);
    }

    void captions()
    {
        const auto [title, fits] = fetchRow<QString, bool>();
        clsNoteProps note = m_fixture->record(u"text"_s);
        note.TitleBarTitle = title;
        m_fixture->add(note);
        const QString caption = m_fixture->tabs.caption(0);
        QCOMPARE(caption, fits ? title : title.left(caption.size() - 3) + u"..."_s);
        QVERIFY(caption.isValidUtf16());
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

    void leavingCommits_data()
    {
        const Rows<Act> row; // leave
        row("other tab", [](StackFixture &f) { f.tabs.setCurrentIndex(0); });
        row("keyboard",
            [](StackFixture &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier); });
        row("new note", [](StackFixture &f) { f.add(f.record(u"new"_s)); });
        row("save", [](StackFixture &f) { modForms::SaveAllNotes(f.program); });
        row("desktop", [](StackFixture &f) { f.choose("mnuDesktop1"); });
        row("lock", [](StackFixture &f) { f.choose("mnuLocked"); });
        row("close", [](StackFixture &f) { f.stack.close(); });
    }

    void leavingCommits()
    {
        const auto [leave] = fetchRow<Act>();
        m_fixture->addAll({u"other"_s, u"old"_s});
        QVERIFY(QTest::qWaitForWindowActive(&m_fixture->stack));
        m_fixture->type(1, u" and typed"_s);
        leave(*m_fixture);
        QCOMPARE(m_fixture->program.forms.recordOf(2)->Data, u"old and typed"_s);
        QCOMPARE(m_fixture->program.forms.recordOf(1)->Data, u"other"_s);
    }

    void lockedTextIsNowhere()
    {
        const QString secret = u"the secret"_s;
        clsNoteProps note = m_fixture->protectedRecord(secret, false, true);
        note.TitleBarTitle = u"title"_s;
        note.BackPicOn = true;
        note.PicFile = u"/no/such.bmp"_s;
        const auto isHidden = [this, &secret] { return m_fixture->isLocked() && m_fixture->isUnseen(secret); };
        const auto unlock = [this] {
            NoteFixture::answerPassword(u"right"_s);
            m_fixture->click("lblPassword");
        };
        m_fixture->add(m_fixture->record(u"other"_s));
        m_fixture->test.prompts.whileOpen = [this, &isHidden] {
            m_fixture->tabs.setCurrentIndex(0);
            QVERIFY(!m_fixture->isLocked());
            m_fixture->tabs.setCurrentIndex(1);
            QVERIFY(isHidden());
        };
        qint32 tag = 0;
        m_fixture->boxOf([this, &tag, &note] { tag = m_fixture->add(note); }); // the picture that is missing
        QVERIFY(isHidden());
        for (const char *name : {"imgDelete", "imgToDesktop", "imgSettings", "imgAlarm", "imgPassword"}) {
            const Message told = m_fixture->boxOf([this, name] { m_fixture->click(name); });
            QVERIFY2(m_fixture->test.prompts.isDone() && told.text == u"Sorry, this is a locked quillet.", name);
        }
        unlock();
        m_fixture->tabs.setCurrentIndex(0);
        m_fixture->tabs.setCurrentIndex(1);
        QVERIFY(!m_fixture->isLocked() && !m_fixture->isUnseen(secret));
        m_fixture->click("lblDisplay(1)");
        m_fixture->choose("mnuLocked");
        QVERIFY(isHidden());
        m_fixture->stack.recordChanged(tag);
        m_fixture->click("lblDisplay(1)");
        NoteFixture::answerPassword({});
        m_fixture->boxOf([this] { QTest::keyClick(&m_fixture->stack, Qt::Key_Return); });
        QVERIFY(isHidden());
        // Coming back from the desktop it is locked again.
        unlock();
        m_fixture->choose("mnuDesktop1");
        QVERIFY(NoteFixture::isLocked(*m_fixture->at(tag)));
        m_fixture->at(tag)->ToTheNoteStack();
        NoteFixture::deleteUnloaded();
        QVERIFY(isHidden());
    }

    void orderIsKept()
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
        QCOMPARE(StackFixture::captionsOf(tabs), QStringList({u"a"_s, u"b"_s, u"c"_s, u"new"_s}));
        QCOMPARE(tabs.currentIndex(), 1);
        QCOMPARE(control<QLabel>(next, "lblDisplay(3)").text(), u"new"_s);
        QVERIFY(control<QLabel>(next, "lblDisplay(1)").isVisibleTo(&next));
    }

    /// What was edited stands in the data file as it was before.
    void orderOutlivesACrash()
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
        QCOMPARE(StackFixture::captionsOf(*next.findChild<NoteTabs *>()), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    }

    void blankTitleIsTold()
    {
        m_fixture->addAll({u"a"_s, u"b"_s});
        m_fixture->choose("mnuTitle");
        control<QLineEdit>(m_fixture->stack, "txtTitle").setText(u"  "_s);
        m_fixture->boxOf([this] { m_fixture->tabs.setCurrentIndex(0); });
        QCOMPARE(m_fixture->captions(), QStringList({u"a"_s, u"b"_s}));
    }

    void wrongPasswords_data()
    {
        const Rows<QByteArray, QString, QString> row; // entry of the menu, text, caption
        const QString access = u"Access failed"_s;
        row("delete", "mnuDelete", u"Authentication invalid.  Deletion failed."_s, u"Deletion Failed"_s);
        row("settings", "mnuSettings", u"Access to Settings failed."_s, access);
        row("alarm", "mnuAlarm", u"Access to Alarm functions failed."_s, access);
        row("password", "mnuPassword", u"Access to Password functions failed."_s, access);
        row("title", "mnuTitle", u"Invalid password.  Access to note failed."_s, access);
        row("click", {}, u"Editing failed."_s, u"Editing failed"_s);
        row("typing", {}, u"Editing failed."_s, u"Editing failed"_s);
    }

    /// While the password is asked for, the alarm of the same note comes due and takes it to the desktop.
    void wrongPasswords()
    {
        const auto [entry, text, caption] = fetchRow<QByteArray, QString, QString>();
        ScriptedPrompts &prompts = m_fixture->test.prompts;
        const qint32 tag = m_fixture->add(m_fixture->alarmed(m_fixture->protectedRecord(u"text"_s, true, false)));
        for (const bool alarm : {false, true}) {
            if (entry == "mnuDelete")
                prompts.expect(Answer::Ok); // the question
            NoteFixture::answerPassword(u"wrong"_s, [this, alarm, &prompts] {
                m_fixture->test.clock.advance(alarm ? 60 : 0);
                prompts.expect(Answer::Ok);
            });
            if (!entry.isEmpty())
                m_fixture->choose(entry.constData());
            else if (QTest::currentDataTag() == QByteArray("click"))
                m_fixture->click("lblDisplay(0)");
            else
                QTest::keyClick(&m_fixture->stack, Qt::Key_A);
            QVERIFY(prompts.isDone() && prompts.last.text == text && prompts.last.caption == caption);
            QCOMPARE(m_fixture->stack.noteCount(), alarm ? 0 : 1);
        }
        QCOMPARE(m_fixture->at(tag)->GetThisNoteProps()->Data, u"text"_s);
        QCOMPARE(m_fixture->test.sound.played.size(), 1);
    }

    void menus_data()
    {
        const Rows<clsNoteProps, QString> row; // note, entries
        const StackFixture fixture;
        const QString open = u"To DeskTop Print - Title - Properties[Password%1 Alarm%2 Locked] - "
                             "Actions[Settings Send E-mail - Delete] Help"_s;
        clsNoteProps alarm = fixture.record(u"text"_s);
        alarm.AlarmOn = true;
        alarm.AlarmDateYear = 3000;
        row("plain", fixture.record(u"text"_s), open.arg(QString(), QString()));
        row("alarm", alarm, open.arg(QString(), u"+"_s));
        row("read-only", fixture.protectedRecord(u"text"_s, true, false), open.arg(u"+"_s, QString()));
        row("locked", fixture.protectedRecord(u"text"_s, true, true),
            u"(To DeskTop) (Print) - (Title) - Properties[(Password+) (Alarm) Locked+] - "
            "Actions[(Settings) (Send) (E-mail) - (Delete)] (Help)"_s);
    }

    void menus()
    {
        const auto [note, entries] = fetchRow<clsNoteProps, QString>();
        m_fixture->add(note);
        m_fixture->click("imgMenu");
        QCOMPARE(NoteFixture::described(control<QMenu>(m_fixture->stack, "mnuPopup2")), entries);
        QApplication::activePopupWidget()->close();
        if (m_fixture->isLocked())
            return;
        m_fixture->click("lblDisplay(0)", Qt::RightButton);
        QCOMPARE(NoteFixture::described(control<QMenu>(m_fixture->stack, "mnuPopup")),
                 note.PwdOn ? u"To DeskTop Print - Copy (Paste)"_s : u"To DeskTop Print - Copy Paste"_s);
        QApplication::activePopupWidget()->close();
    }

private:
    std::optional<StackFixture> m_fixture;
};

QTEST_MAIN(testNoteStack)
#include "testNoteStack.moc"
