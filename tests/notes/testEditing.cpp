// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/endlessRuns.h"
#include "notes/NoteFixture.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

class testEditing final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void textComesBack_data();
    void textComesBack();
    void pasteCanBeUndone();
    void endlessPasteIsRefused();
    void lockedTextIsNowhere_data();
    void lockedTextIsNowhere();
    void titles_data();
    void titles();
    void emptyTitleIsRefused();
    void savingTakesWhatIsBeingTyped();
    void lookingAtWhatIsTypedChangesNothing();
    void noteThatGoesBehindTheTitlesBox();

private:
    std::unique_ptr<NoteFixture> m_fixture;
};

void testEditing::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
}

void testEditing::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testEditing::textComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");
    const QString odd = u"a\nb\rc\r\n\r\nd\u2028e\u2029f\u00a0g"_s + QChar() + u"h"_s + QChar(0xD83C) + u"\ti "_s;
    QTest::newRow("looked at") << odd << u""_s << odd;
    QTest::newRow("empty, looked at") << u""_s << u""_s << u""_s;
    QTest::newRow("first text") << u""_s << u"milk"_s << u"milk"_s;
    QTest::newRow("line ends") << u"a\r\nb"_s << u"\rc"_s << u"a\r\nb\r\nc"_s;
    QTest::newRow("no-break blanks") << u"1\u00a0000\u00a0\u20ac"_s << u"!"_s << u"1\u00a0000\u00a0\u20ac!"_s;
    QTest::newRow("half a character") << u"a"_s + QChar(0xD83C) + u"b"_s << u"!"_s << u"a"_s + QChar(0xD83C) + u"b!"_s;
    QTest::newRow("a zero") << u"a"_s + QChar() + u"b"_s << u"!"_s << u"a"_s + QChar() + u"b!"_s;
    QTest::newRow("a blank at the end") << u"a \r\n"_s << u" "_s << u"a \r\n "_s;
}

void testEditing::textComesBack()
{
    QFETCH(QString, text);
    QFETCH(QString, typed);
    frmNote *note = m_fixture->create(text);
    note->SaveThisNote();
    QPlainTextEdit &box = NoteFixture::edit(*note);
    QVERIFY(box.isVisible());
    QTest::keyClicks(&box, typed);
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.isVisible());
    QTEST(note->GetThisNoteProps()->Data, "result");
    note->SaveThisNote();
    QTEST(m_fixture->stored().front().Data, "result");
    // A second look at it starts from what is stored.
    QTest::keyClick(&NoteFixture::edit(*note), Qt::Key_Escape);
    QTEST(note->GetThisNoteProps()->Data, "result");
}

void testEditing::pasteCanBeUndone()
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
void testEditing::endlessPasteIsRefused()
{
    const QString half(endlessRuns::Longest / 2 + 1, u'x');
    frmNote *note = m_fixture->create(half + u" b"_s);
    QPlainTextEdit &box = NoteFixture::edit(*note);
    box.moveCursor(QTextCursor::Start);
    QGuiApplication::clipboard()->setText(half);
    m_fixture->test.prompts.expect(Answer::Ok);
    box.paste();
    QTRY_VERIFY(m_fixture->test.prompts.isDone());
    QGuiApplication::clipboard()->setText((u"words and "_s).repeated(endlessRuns::Longest));
    box.paste();
    note->commitEditing();
    QCOMPARE(note->GetThisNoteProps()->Data.size(), endlessRuns::Longest * 10 + half.size() + 2);
}

void testEditing::lockedTextIsNowhere_data()
{
    QTest::addColumn<bool>("opensLocked");
    QTest::newRow("opened locked") << true;
    QTest::newRow("locked while it is edited") << false;
}

void testEditing::lockedTextIsNowhere()
{
    QFETCH(bool, opensLocked);
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = u"a secret"_s;
    record.PwdOn = true;
    record.PwdReadonlyOn = false;
    record.PwdOpenCloseOn = opensLocked;
    record.Pwd = u"Sesame"_s;
    frmNote *note = m_fixture->create(record);
    if (!opensLocked) {
        QTest::keyClicks(&NoteFixture::edit(*note), u" of state"_s);
        note->lockform();
        QCOMPARE(note->GetThisNoteProps()->Data, u"a secret of state"_s);
    }
    note->ApplyNoteAppearance();
    for (const QObject *part : note->findChildren<QObject *>())
        for (const char *property : {"text", "plainText", "toolTip", "accessibleName", "windowTitle"})
            QVERIFY2(!part->property(property).toString().contains(u"secret"), qPrintable(part->objectName()));
    QVERIFY(!NoteFixture::control<QLabel>(*note, "lblDisplay").isVisible());
    QTest::mouseDClick(&NoteFixture::control<QWidget>(*note, "lblTitle"), Qt::LeftButton);
    QTest::mouseDClick(&NoteFixture::control<QWidget>(*note, "lblTitle"), Qt::LeftButton);
    QVERIFY(!NoteFixture::control<QLabel>(*note, "lblDisplay").isVisible());
    QVERIFY(NoteFixture::control<QWidget>(*note, "fraPassword").isVisible());
}

void testEditing::titles_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("title");
    QTest::newRow("taken") << u"New & old"_s << Qt::Key_Return << u"New & old"_s;
    QTest::newRow("given up") << u"New"_s << Qt::Key_Escape << u"Old"_s;
    QTest::newRow("as typed") << u" New "_s << Qt::Key_Enter << u" New "_s;
}

void testEditing::titles()
{
    QFETCH(QString, typed);
    QFETCH(Qt::Key, key);
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.TitleBarTitle = u"Old"_s;
    frmNote *note = m_fixture->create(record);
    QTest::keyClick(note, Qt::Key_F2);
    auto &editor = NoteFixture::control<QLineEdit>(*note, "txtTitle");
    QCOMPARE(editor.selectedText(), u"Old"_s);
    editor.setText(typed);
    QTest::keyClick(&editor, key);
    QVERIFY(!editor.isVisible());
    QTEST(note->GetThisNoteProps()->TitleBarTitle, "title");
    QTEST(NoteFixture::control<QLabel>(*note, "lblTitle").text(), "title");
}

void testEditing::emptyTitleIsRefused()
{
    frmNote *note = m_fixture->create(u"text"_s);
    QCOMPARE(NoteFixture::control<QLabel>(*note, "lblTitle").text(), u"1"_s);
    note->SetFocusToTitleBar();
    auto &editor = NoteFixture::control<QLineEdit>(*note, "txtTitle");
    editor.setText(u"  "_s);
    m_fixture->test.prompts.expect(Answer::Ok);
    QTest::keyClick(&editor, Qt::Key_Return);
    QCOMPARE(m_fixture->test.prompts.last.text, u"You cannot have a zero-length title."_s);
    QVERIFY(editor.isVisible() && editor.text() == u"1");
    // While the program ends nobody insists.
    editor.clear();
    note->Destroy();
    note->commitEditing();
    QCOMPARE(note->GetThisNoteProps()->TitleBarTitle, QString());
}

/// The half-hourly save comes while somebody types: it ends nothing.
void testEditing::savingTakesWhatIsBeingTyped()
{
    frmNote *note = m_fixture->create(u"a"_s);
    QPlainTextEdit &box = NoteFixture::edit(*note);
    QTest::keyClicks(&box, u"bd"_s);
    QTest::keyClick(&box, Qt::Key_Left);
    modForms::SaveAllNotes(m_fixture->program);
    QCOMPARE(m_fixture->stored().front().Data, u"abd"_s);
    QTest::keyClicks(&box, u"c"_s);
    QVERIFY(box.isVisible());
    note->SetFocusToTitleBar();
    QCOMPARE(note->GetThisNoteProps()->Data, u"abcd"_s);
    auto &title = NoteFixture::control<QLineEdit>(*note, "txtTitle");
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
void testEditing::lookingAtWhatIsTypedChangesNothing()
{
    frmNote *note = m_fixture->create(u"a"_s);
    note->SaveThisNote();
    const clsNoteProps before = *note->GetThisNoteProps();
    QPlainTextEdit &box = NoteFixture::edit(*note);
    for (const auto &[keys, text] : {std::pair(u"\rb"_s, u"a\r\nb"_s), {u"c"_s, u"a\r\nbc"_s}, {u""_s, u"a\r\nbc"_s}}) {
        QTest::keyClicks(&box, keys);
        QCOMPARE(note->recordNow(before.Tag).Data, text);
        QVERIFY(*note->GetThisNoteProps() == before && box.isVisible());
    }
    box.undo();
    QVERIFY(note->recordNow(before.Tag).Data != u"a\r\nbc"_s);
    box.setPlainText(u"a"_s);
    note->commitEditing();
    note->SetFocusToTitleBar();
    auto &title = NoteFixture::control<QLineEdit>(*note, "txtTitle");
    QTest::keyClicks(&title, u"typed"_s);
    QCOMPARE(note->recordNow(before.Tag).TitleBarTitle, u"typed"_s);
    QTest::keyClick(&title, Qt::Key_Escape);
    QCOMPARE(note->recordNow(before.Tag).TitleBarTitle, before.TitleBarTitle);
}

void testEditing::noteThatGoesBehindTheTitlesBox()
{
    const QPointer<frmNote> note = m_fixture->create(u"text"_s);
    note->SetFocusToTitleBar();
    NoteFixture::control<QLineEdit>(*note, "txtTitle").clear();
    m_fixture->test.prompts.expect(Answer::Ok);
    m_fixture->test.prompts.whileOpen = [&note] {
        note->ToTheNoteStack();
        NoteFixture::deleteUnloaded();
    };
    QTest::keyClick(&NoteFixture::control<QLineEdit>(*note, "txtTitle"), Qt::Key_Return);
    QVERIFY(note == nullptr);
}

QTEST_MAIN(testEditing)
#include "testEditing.moc"
