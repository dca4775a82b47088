// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/endlessRuns.h"
#include "notes/NoteFixture.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

class testEditing final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void textComesBack_data()
    {
        const Rows<QString, QString, QString> row; // text, typed, result
        const QString odd = u"a\nb\rc\r\n\r\nd\u2028e\u2029f\u00a0g"_s + QChar() + u"h"_s + QChar(0xD83C) + u"\ti "_s;
        row("looked at", odd, u""_s, odd);
        row("first text", u""_s, u"milk"_s, u"milk"_s);
        row("line ends", u"a\r\nb"_s, u"\rc"_s, u"a\r\nb\r\nc"_s);
        row("no-break blanks", u"1\u00a0000\u00a0\u20ac"_s, u"!"_s, u"1\u00a0000\u00a0\u20ac!"_s);
        row("half a character", u"a"_s + QChar(0xD83C) + u"b"_s, u"!"_s, u"a"_s + QChar(0xD83C) + u"b!"_s);
        row("a zero", u"a"_s + QChar() + u"b"_s, u"!"_s, u"a"_s + QChar() + u"b!"_s);
        row("a blank at the end", u"a \r\n"_s, u" "_s, u"a \r\n "_s);
    }

    void textComesBack()
    {
        const auto [text, typed, result] = fetchRow<QString, QString, QString>();
        frmNote *note = m_fixture->create(text);
        note->SaveThisNote();
        // A second look at it starts from what is stored.
        for (const QString &keys : {typed, QString()}) {
            QPlainTextEdit &box = NoteFixture::edit(*note);
            QVERIFY(box.isVisible());
            QTest::keyClicks(&box, keys);
            QTest::keyClick(&box, Qt::Key_Escape);
            QVERIFY(!box.isVisible());
            QCOMPARE(note->GetThisNoteProps()->Data, result);
            note->SaveThisNote();
            QCOMPARE(m_fixture->storedTexts(), QStringList(result));
        }
    }

    void pasteCanBeUndone()
    {
        frmNote *note = m_fixture->create(u"first\r\nsecond"_s);
        QGuiApplication::clipboard()->setText(u"one\ntwo\rthree\r\nfour"_s);
        NoteFixture::choose(*note, "mnuPaste", false);
        const QString &data = note->GetThisNoteProps()->Data;
        QCOMPARE(data, u"one\r\ntwo\r\nthree\r\nfour"_s);
        QPlainTextEdit &box = NoteFixture::edit(*note);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_Escape);
        QCOMPARE(data, u"first\r\nsecond"_s);
        QTest::keyClick(&NoteFixture::edit(*note), Qt::Key_Y, Qt::ControlModifier);
        note->commitEditing();
        QCOMPARE(data, u"one\r\ntwo\r\nthree\r\nfour"_s);
        NoteFixture::choose(*note, "mnuCopy", false);
        // The line end of a clipboard is the platform's; Qt makes it that of Windows there.
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one\ntwo\nthree\nfour"_s);
    }

    /// Runs that lines cannot be broken in keep a text box busy for seconds, at each key.
    void endlessPasteIsRefused()
    {
        const QString half(endlessRuns::Longest / 2 + 1, u'x');
        frmNote *note = m_fixture->create(half + u" b"_s);
        QPlainTextEdit &box = NoteFixture::edit(*note);
        box.moveCursor(QTextCursor::Start);
        QGuiApplication::clipboard()->setText(half);
        m_fixture->boxOf([&box] { box.paste(); });
        QGuiApplication::clipboard()->setText((u"words and "_s).repeated(endlessRuns::Longest));
        box.paste();
        note->commitEditing();
        QCOMPARE(note->GetThisNoteProps()->Data.size(), endlessRuns::Longest * 10 + half.size() + 2);
    }

    void lockedTextIsNowhere_data()
    {
        const Rows<bool> row; // opensLocked
        row("opened locked", true);
        row("locked while it is edited", false);
    }

    void lockedTextIsNowhere()
    {
        const auto [opensLocked] = fetchRow<bool>();
        clsNoteProps record = m_fixture->protectedRecord(u"a secret"_s, false, opensLocked);
        record.TitleBarTitle = u"title"_s;
        frmNote *note = m_fixture->create(record);
        if (!opensLocked) {
            QTest::keyClicks(&NoteFixture::edit(*note), u" of state"_s);
            note->lockform();
            QCOMPARE(note->GetThisNoteProps()->Data, u"a secret of state"_s);
        }
        note->ApplyNoteAppearance();
        for (int turn = 0; turn < 2; ++turn) {
            QVERIFY(NoteFixture::isUnseen(*note, u"secret"_s) && NoteFixture::isLocked(*note));
            QVERIFY(!control<QLabel>(*note, "lblDisplay").isVisible());
            NoteFixture::roll(*note);
            NoteFixture::roll(*note);
        }
    }

    void titles_data()
    {
        const Rows<QString, Qt::Key, QString> row; // typed, key, title
        row("taken", u"New & old"_s, Qt::Key_Return, u"New & old"_s);
        row("given up", u"New"_s, Qt::Key_Escape, u"Old"_s);
        row("as typed", u" New "_s, Qt::Key_Enter, u" New "_s);
    }

    void titles()
    {
        const auto [typed, key, title] = fetchRow<QString, Qt::Key, QString>();
        clsNoteProps record = m_fixture->program.NoteTemplate;
        record.TitleBarTitle = u"Old"_s;
        frmNote *note = m_fixture->create(record);
        QTest::keyClick(note, Qt::Key_F2);
        auto &editor = control<QLineEdit>(*note, "txtTitle");
        QCOMPARE(editor.selectedText(), u"Old"_s);
        editor.setText(typed);
        QTest::keyClick(&editor, key);
        QVERIFY(!editor.isVisible());
        QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, title);
        QCOMPARE(control<QLabel>(*note, "lblTitle").text(), title);
    }

    void emptyTitleIsRefused()
    {
        frmNote *note = m_fixture->create(u"text"_s);
        QCOMPARE(control<QLabel>(*note, "lblTitle").text(), u"1"_s);
        note->SetFocusToTitleBar();
        auto &editor = control<QLineEdit>(*note, "txtTitle");
        editor.setText(u"  "_s);
        const Message told = m_fixture->boxOf([&editor] { QTest::keyClick(&editor, Qt::Key_Return); });
        QCOMPARE(told.text, u"You cannot have a zero-length title."_s);
        QVERIFY(editor.isVisible() && editor.text() == u"1");
        // While the program ends nobody insists.
        editor.clear();
        note->Destroy();
        note->commitEditing();
        QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, QString());
    }

    /// The half-hourly save comes while somebody types: it ends nothing.
    void savingTakesWhatIsBeingTyped()
    {
        frmNote *note = m_fixture->create(u"a"_s);
        QPlainTextEdit &box = NoteFixture::edit(*note);
        QTest::keyClicks(&box, u"bd"_s);
        QTest::keyClick(&box, Qt::Key_Left);
        modForms::SaveAllNotes(m_fixture->program);
        QCOMPARE(m_fixture->storedTexts(), QStringList(u"abd"_s));
        QTest::keyClicks(&box, u"c"_s);
        QVERIFY(box.isVisible());
        note->SetFocusToTitleBar();
        QCOMPARE(note->GetThisNoteProps()->Data, u"abcd"_s);
        auto &title = control<QLineEdit>(*note, "txtTitle");
        title.setText(u"Title"_s);
        modForms::SaveAllNotes(m_fixture->program);
        QCOMPARE(m_fixture->stored().front().TitleBarTitle, u"Title"_s);
        QVERIFY(title.isVisible());
        QTest::keyClick(note, Qt::Key_F2);
        QCOMPARE(title.text(), u"Title"_s);
        QTest::keyClicks(&title, u"!"_s);
        note->commitEditing();
        QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, u"Title!"_s);
    }

    /// As the journal does while somebody types; Escape must still give a title up.
    void lookingAtWhatIsTypedChangesNothing()
    {
        frmNote *note = m_fixture->create(u"a"_s);
        note->SaveThisNote();
        const clsNoteProps before = *note->GetThisNoteProps();
        QPlainTextEdit &box = NoteFixture::edit(*note);
        for (const auto &[keys, text] :
             {std::pair(u"\rb"_s, u"a\r\nb"_s), {u"c"_s, u"a\r\nbc"_s}, {u""_s, u"a\r\nbc"_s}}) {
            QTest::keyClicks(&box, keys);
            QCOMPARE(note->recordNow(before.Tag).Data, text);
            QVERIFY(*note->GetThisNoteProps() == before && box.isVisible());
        }
        box.undo();
        QVERIFY(note->recordNow(before.Tag).Data != u"a\r\nbc"_s);
        box.setPlainText(u"a"_s);
        note->commitEditing();
        note->SetFocusToTitleBar();
        auto &title = control<QLineEdit>(*note, "txtTitle");
        QTest::keyClicks(&title, u"typed"_s);
        QCOMPARE(note->recordNow(before.Tag).TitleBarTitle, u"typed"_s);
        QTest::keyClick(&title, Qt::Key_Escape);
        QCOMPARE(note->recordNow(before.Tag).TitleBarTitle, before.TitleBarTitle);
    }

    void noteThatGoesBehindTheTitlesBox()
    {
        const QPointer<frmNote> note = m_fixture->create(u"text"_s);
        note->SetFocusToTitleBar();
        auto &title = control<QLineEdit>(*note, "txtTitle");
        title.clear();
        m_fixture->test.prompts.whileOpen = [&note] {
            note->ToTheNoteStack();
            NoteFixture::deleteUnloaded();
        };
        m_fixture->boxOf([&title] { QTest::keyClick(&title, Qt::Key_Return); });
        QVERIFY(note == nullptr);
    }

private:
    std::optional<NoteFixture> m_fixture;
};

QTEST_MAIN(testEditing)
#include "testEditing.moc"
