// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"
#include "notes/parts/textLinks.h"
#include "support/answerDialog.h"

#include <QFontMetricsF>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using Answer = Prompts::Answer;

/// Addresses and boxes in plain texts.
class testTextLinks final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void addresses_data();
    void addresses();
    void marks_data();
    void marks();
    void pressedWithCtrl_data();
    void pressedWithCtrl();
    void tickedWhereItIsShown();
    void tickedInTheEdit();
    void readOnlyNotesRefuse();

private:
    /// Presses the letter of that line, both from 0.
    static void press(QWidget &text, int line, int letter, Qt::KeyboardModifiers modifiers);
    frmNote *wideNote(clsNoteProps record) const;

    std::unique_ptr<NoteFixture> m_fixture;
};

void testTextLinks::init()
{
    failOnWarnings();
    m_fixture = std::make_unique<NoteFixture>();
}

void testTextLinks::cleanup()
{
    QVERIFY(m_fixture->test.prompts.isDone());
    m_fixture.reset();
}

void testTextLinks::addresses_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("address"); // empty for none
    QTest::newRow("bare") << u"https://example.org/a?b=c#d"_s << u"https://example.org/a?b=c#d"_s;
    QTest::newRow("in a sentence") << u"(see http://example.org/x.)"_s << u"http://example.org/x"_s;
    QTest::newRow("brackets of its own") << u"http://example.org/a_(b)"_s << u"http://example.org/a_(b)"_s;
    QTest::newRow("in marks") << u"<https://example.org>"_s << u"https://example.org"_s;
    QTest::newRow("capitals") << u"HTTPS://Example.org"_s << u"https://example.org"_s;
    QTest::newRow("a mail") << u"mailto:a@example.org"_s << u"mailto:a@example.org"_s;
    QTest::newRow("letters that look alike") << u"https://ex\u0430mple.org"_s << u"https://xn--exmple-4nf.org"_s;
    QTest::newRow("no place") << u"http:// nothing"_s << QString();
    QTest::newRow("a file") << u"file:///etc/passwd"_s << QString();
    QTest::newRow("a script") << u"javascript:alert(1)"_s << QString();
    QTest::newRow("inside a word") << u"xhttp://example.org"_s << QString();
    QTest::newRow("no receiver") << u"mailto:nobody"_s << QString();
    QTest::newRow("endless") << u"http://example.org/"_s + u"a"_s.repeated(3000) << QString();
}

void testTextLinks::addresses()
{
    QFETCH(QString, line);
    const auto found = textLinks::addressAt(line, qMax(qsizetype(0), line.indexOf(u"//"_s)));
    const auto mail = textLinks::addressAt(line, line.indexOf(u"to:"_s));
    const QUrl address = found ? *found : mail.value_or(QUrl());
    QTEST(address.toString(QUrl::FullyEncoded), "address");
    QCOMPARE(textLinks::addressAt(line, line.size()), std::nullopt);
}

void testTextLinks::marks_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("mark"); // -1 for none
    QTest::newRow("open") << u"[ ] milk"_s << 1;
    QTest::newRow("done") << u"[x]"_s << 1;
    QTest::newRow("capital, behind blanks") << u" \t[X] milk"_s << 3;
    QTest::newRow("inside the line") << u"a [ ] milk"_s << -1;
    QTest::newRow("another sign") << u"[y] milk"_s << -1;
    QTest::newRow("cut off") << u"[ "_s << -1;
    QTest::newRow("empty") << QString() << -1;
}

void testTextLinks::marks()
{
    QFETCH(QString, line);
    const int mark = static_cast<int>(textLinks::markOf(line).value_or(-1));
    QTEST(mark, "mark");
}

void testTextLinks::press(QWidget &text, int line, int letter, Qt::KeyboardModifiers modifiers)
{
    const QFontMetricsF metrics(text.font());
    const qreal x = NoteText::air().left() + (letter + 0.5) * metrics.horizontalAdvance(u'0');
    const qreal y = NoteText::air().top() + (line + 0.5) * metrics.lineSpacing();
    QTest::mouseClick(&text, Qt::LeftButton, modifiers, QPointF(x, y).toPoint());
}

frmNote *testTextLinks::wideNote(clsNoteProps record) const
{
    record.FontName = u"DejaVu Sans Mono"_s;
    frmNote *note = m_fixture->create(record);
    note->resize(600, 300);
    return note;
}

void testTextLinks::pressedWithCtrl_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("opens");
    QTest::newRow("on it") << 8 << Qt::KeyboardModifiers(Qt::ControlModifier) << true;
    QTest::newRow("without Ctrl") << 8 << Qt::KeyboardModifiers() << false;
    QTest::newRow("before it") << 1 << Qt::KeyboardModifiers(Qt::ControlModifier) << false;
    QTest::newRow("behind the line") << 60 << Qt::KeyboardModifiers(Qt::ControlModifier) << false;
}

void testTextLinks::pressedWithCtrl()
{
    QFETCH(int, letter);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, opens);
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = u"first\r\nsee http://example.org/"_s;
    frmNote *note = wideNote(record);
    press(NoteFixture::control<QWidget>(*note, "lblDisplay"), 1, letter, modifiers);
    QCOMPARE(m_fixture->test.browser.last, opens ? QUrl(u"http://example.org/"_s) : QUrl());
    // What opens nothing begins the edit, where the same holds.
    QPlainTextEdit &box = opens ? NoteFixture::edit(*note) : NoteFixture::control<QPlainTextEdit>(*note, "txtText");
    m_fixture->test.browser.last.clear();
    m_fixture->test.browser.isThere = false;
    if (opens)
        m_fixture->test.prompts.expect(Answer::Ok);
    const QRect caret = box.cursorRect(QTextCursor(box.document()->findBlockByNumber(1)));
    const qreal x = caret.left() + (letter + 0.5) * QFontMetricsF(box.font()).horizontalAdvance(u'0');
    QTest::mouseClick(box.viewport(), Qt::LeftButton, modifiers, QPointF(x, caret.center().y()).toPoint());
    QCOMPARE(m_fixture->test.browser.last.isEmpty(), !opens);
}

void testTextLinks::tickedWhereItIsShown()
{
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = u"first\n[ ] milk\r\n[x] bread"_s;
    frmNote *note = wideNote(record);
    note->SaveThisNote();
    auto &text = NoteFixture::control<QWidget>(*note, "lblDisplay");
    press(text, 1, 1, Qt::ControlModifier);
    press(text, 2, 0, Qt::ControlModifier);
    const QString &data = note->GetThisNoteProps()->Data;
    QCOMPARE(data, u"first\n[x] milk\r\n[ ] bread"_s);
    QVERIFY(note->GetThisNoteProps()->SaveTag == 1);
    QPlainTextEdit &box = NoteFixture::edit(*note);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(data, u"first\n[x] milk\r\n[ ] bread"_s);
    QTest::keyClick(&NoteFixture::edit(*note), Qt::Key_Z, Qt::ControlModifier);
    note->commitEditing();
    QCOMPARE(data, u"first\r\n[x] milk\r\n[x] bread"_s);
}

void testTextLinks::tickedInTheEdit()
{
    frmNote *note = m_fixture->create(u"[ ] milk\r\nno box"_s);
    QPlainTextEdit &box = NoteFixture::edit(*note);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(box.toPlainText(), u"[ ] milk\nno box"_s);
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(box.toPlainText(), u"[x] milk\nno box"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box.toPlainText(), u"[ ] milk\nno box"_s);
}

void testTextLinks::readOnlyNotesRefuse()
{
    clsNoteProps record = m_fixture->program.NoteTemplate;
    record.Data = u"[ ] milk"_s;
    record.PwdOn = record.PwdReadonlyOn = true;
    record.Pwd = u"right"_s;
    frmNote *note = wideNote(record);
    answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) { prompt.reject(); });
    m_fixture->test.prompts.expect(Answer::Ok);
    press(NoteFixture::control<QWidget>(*note, "lblDisplay"), 0, 1, Qt::ControlModifier);
    QCOMPARE(m_fixture->test.prompts.last.text, u"Editing failed."_s);
    QCOMPARE(note->GetThisNoteProps()->Data, u"[ ] milk"_s);
}

QTEST_MAIN(testTextLinks)
#include "testTextLinks.moc"
