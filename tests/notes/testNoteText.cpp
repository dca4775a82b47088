// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteFixture.h"
#include "notes/parts/NoteBody.h"
#include "notes/parts/textLinks.h"
#include "support/compareRow.h"

#include <QFontMetricsF>
#include <QTextBlock>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace
{

const Qt::KeyboardModifiers Ctrl = Qt::ControlModifier;

/// A body on yellow paper.
struct Paper
{
    Paper(const QFont &font, QSize size)
    {
        note.resize(size);
        note.setStyleSheet(u"background: rgb(255, 255, 200)"_s);
        body.setGeometry(note.rect());
        body.setLook(font, NoteInk::from(0xC8FFFF, 0));
    }

    QWidget note;
    NoteBody body{&note};
};

/// A text in a window of its own.
struct Shown
{
    explicit Shown(const QString &caption, QSize size = {200, 100})
    {
        text.resize(size);
        text.setCaption(caption);
    }
    QImage grab() { return text.grab().toImage(); }

    QWidget window;
    NoteText text{&window};
};

/// Presses the letter of that line, both from 0.
void pressLetter(QWidget &text, int line, int letter, Qt::KeyboardModifiers modifiers)
{
    const QFontMetricsF metrics(text.font());
    const qreal x = NoteText::air().left() + (letter + 0.5) * metrics.horizontalAdvance(u'0');
    const qreal y = NoteText::air().top() + (line + 0.5) * metrics.lineSpacing();
    QTest::mouseClick(&text, Qt::LeftButton, modifiers, QPointF(x, y).toPoint());
}

} // namespace

/// What is read and what is typed look the same; addresses and boxes in plain texts.
class testNoteText final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture.emplace(); }
    void cleanup() { m_fixture.reset(); }

    void drawsWhatTheTextBoxDraws_data()
    {
        const Rows<QString> row; // text
        row("lines", u"2 l milk\r\nBread & butter && jam\r\n\r\nCoffee, whole beans"_s);
        row("words that wrap", u"A line that is rather long and breaks more than once, and  wide   gaps"_s);
        row("a word that does not fit", u"Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen end"_s);
        row("tabs", u"\tone\r\na\tb\tc\td\r\n1234567890123\tx"_s);
        row("blanks at line ends", u"first      \r\n     second                                          third"_s);
        row("Japanese", u"歯医者に電話する。\r\n保険証番号は青いファイルの中にあります、忘れないこと"_s);
        row("emoji", u"🎂 at four 🐕\r\nx🎂y"_s);
        row("Hebrew and Arabic", u"שלום עולם שלום\r\nmixed שלום text\r\nمرحبا بالعالم"_s);
        row("accents and ligatures", u"Crème brûlée, ½ l, office fluffy e\u0301"_s);
        row("no-break blanks",
            u"a\u00a0b\u00a0c\u00a0d\u00a0e\u00a0f\u00a0g\u00a0h\u00a0i\u00a0j\u00a0k\u00a0l\u00a0m\u00a0n"_s);
        row("line separators", u"one\u2028two\u2029three"_s);
        row("other line ends", u"one\ntwo\rthree\r\n"_s);
        row("zero in the middle", u"one"_s + QChar() + u"two"_s);
        row("half a character", u"one"_s + QChar(0xD83C) + u"two"_s);
        row("empty", u""_s);
    }

    void drawsWhatTheTextBoxDraws()
    {
        const auto [text] = fetchRow<QString>();
        QFont italic(u"DejaVu Serif"_s, 12);
        italic.setItalic(true);
        for (const QFont &font : {QFont(u"DejaVu Sans"_s, 9), italic, QFont(u"DejaVu Sans Mono"_s, 8, QFont::Bold),
                                  QFont(u"Liberation Serif"_s, 11), QFont(u"Noto Sans CJK JP"_s, 10)}) {
            Paper paper(font, {210, 190});
            paper.body.setText(text);
            const QImage display = paper.note.grab().toImage();
            paper.body.BeginTextEditing(text);
            const QImage box = paper.note.grab().toImage();
            if (display == box)
                continue;
            QVERIFY(display.save(u"display.png"_s) && box.save(u"box.png"_s));
            QFAIL(qPrintable(u"See display.png and box.png, in "_s + font.family()));
        }
    }

    /// A click into the text, and the end of the edit, move nothing.
    void editsWhereItIsScrolledTo()
    {
        Paper paper(QFont(u"DejaVu Sans"_s, 9), {210, 120});
        const QString text =
            u"a line that is long enough to be wrapped once at the least\r\n\r\nand one more\r\n"_s.repeated(20);
        paper.body.setText(text);
        paper.note.show();
        for (const TextPlace place : {TextPlace{3, 1}, TextPlace{1000, 0}}) {
            paper.note.findChild<NoteText *>()->scrollTo(place);
            // Without the margin, where the mark is that there is more.
            const QRect letters = paper.note.rect().adjusted(0, 0, -NoteText::air().right(), 0);
            const QImage display = paper.note.grab(letters).toImage();
            paper.body.BeginTextEditing(text);
            QCOMPARE(paper.note.grab(letters).toImage(), display);
            paper.body.commit();
            QCOMPARE(paper.note.grab(letters).toImage(), display);
        }
    }

    /// By keys and by the wheel; the mark in the margin is there as long as there is more below.
    void scrolls()
    {
        Shown shown(u"line\r\n"_s.repeated(49) + u"other"_s);
        const QImage beginning = shown.grab();
        const auto press = [&shown](int key, Qt::KeyboardModifiers modifiers = {}) {
            return shown.text.scrollByKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
        };
        const auto top = [&shown] { return shown.text.place().paragraph; };
        const auto isMarked = [&shown] {
            const QImage margin = shown.text.grab(QRect(195, 0, 5, 100)).toImage();
            return margin != QImage(margin).copy(0, 0, 1, 1).scaled(margin.size());
        };
        const auto wheel = [&shown](int notches) {
            QWheelEvent event({50, 50}, {50, 50}, {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&shown.text, &event);
            return shown.text.place().paragraph;
        };
        QVERIFY(press(Qt::Key_Down) && top() == 1);
        QVERIFY(press(Qt::Key_Down, Qt::KeypadModifier) && top() == 2);
        QVERIFY(press(Qt::Key_Up) && top() == 1);
        QVERIFY(press(Qt::Key_PageDown) && top() > 3 && isMarked());
        QVERIFY(press(Qt::Key_PageUp) && top() == 1);
        QVERIFY(press(Qt::Key_End) && top() > 40 && !isMarked());
        const int last = top();
        QVERIFY(shown.grab() != beginning && press(Qt::Key_Down) && top() == last);
        QVERIFY(press(Qt::Key_Up) && isMarked() && wheel(-1000) == last);
        QVERIFY(press(Qt::Key_Home, Ctrl) && top() == 0 && shown.grab() == beginning);
        QVERIFY(wheel(-1) > 0 && wheel(1) == 0 && wheel(5) == 0);
        QVERIFY(!press(Qt::Key_Down, Qt::AltModifier) && !press(Qt::Key_Left) && top() == 0);
        shown.text.setCaption(u"short"_s);
        QVERIFY(press(Qt::Key_End) && top() == 0 && !isMarked());
    }

    void showsMegabytes_data()
    {
        const Rows<QString> row; // text
        row("lines", u"a line of usual length\r\n"_s.repeated(200000));
        row("one line", u"words "_s.repeated(800000));
        row("one word", QString(5000000, u'x'));
        row("empty lines", u"\r\n"_s.repeated(2500000));
    }

    void showsMegabytes()
    {
        const auto [text] = fetchRow<QString>();
        QCOMPARE(Shown(text.left(20000), {200, 150}).grab(), Shown(text, {200, 150}).grab());
    }

    void addresses()
    {
        const auto row = [](const char *name, const QString &line, const QString &address) {
            const auto found = textLinks::addressAt(line, qMax(qsizetype(0), line.indexOf(u"//"_s)));
            const auto mail = textLinks::addressAt(line, line.indexOf(u"to:"_s));
            compareRow(name, (found ? *found : mail.value_or(QUrl())).toString(QUrl::FullyEncoded), address);
            compareRow(name, textLinks::addressAt(line, line.size()), {});
        };
        row("bare", u"https://example.org/a?b=c#d"_s, u"https://example.org/a?b=c#d"_s);
        row("in a sentence", u"(see http://example.org/x.)"_s, u"http://example.org/x"_s);
        row("brackets of its own", u"http://example.org/a_(b)"_s, u"http://example.org/a_(b)"_s);
        row("in marks", u"<https://example.org>"_s, u"https://example.org"_s);
        row("capitals", u"HTTPS://Example.org"_s, u"https://example.org"_s);
        row("a mail", u"mailto:a@example.org"_s, u"mailto:a@example.org"_s);
        row("letters that look alike", u"https://ex\u0430mple.org"_s, u"https://xn--exmple-4nf.org"_s);
        row("no place", u"http:// nothing"_s, {});
        row("a file", u"file:///etc/passwd"_s, {});
        row("a script", u"javascript:alert(1)"_s, {});
        row("inside a word", u"xhttp://example.org"_s, {});
        row("no receiver", u"mailto:nobody"_s, {});
        row("endless", u"http://example.org/"_s + u"a"_s.repeated(3000), {});
    }

    void marks()
    {
        const auto row = [](const char *name, const QString &line, qsizetype mark) {
            compareRow(name, qsizetype(textLinks::markOf(line).value_or(-1)), mark);
        };
        row("open", u"[ ] milk"_s, 1);
        row("done", u"[x]"_s, 1);
        row("capital, behind blanks", u" \t[X] milk"_s, 3);
        row("inside the line", u"a [ ] milk"_s, -1);
        row("another sign", u"[y] milk"_s, -1);
        row("cut off", u"[ "_s, -1);
        row("empty", {}, -1);
    }

    void pressedWithCtrl_data()
    {
        const Rows<int, Qt::KeyboardModifiers, bool> row; // letter, modifiers, opens
        row("on it", 8, Ctrl, true);
        row("without Ctrl", 8, {}, false);
        row("before it", 1, Ctrl, false);
        row("behind the line", 60, Ctrl, false);
    }

    void pressedWithCtrl()
    {
        const auto [letter, modifiers, opens] = fetchRow<int, Qt::KeyboardModifiers, bool>();
        FakeBrowser &browser = m_fixture->test.browser;
        frmNote *note = wideNote(m_fixture->record(u"first\r\nsee http://example.org/"_s));
        pressLetter(control<QWidget>(*note, "lblDisplay"), 1, letter, modifiers);
        QCOMPARE(browser.last, opens ? QUrl(u"http://example.org/"_s) : QUrl());
        // What opens nothing begins the edit, where the same holds.
        QPlainTextEdit &box = opens ? NoteFixture::edit(*note) : control<QPlainTextEdit>(*note, "txtText");
        browser.last.clear();
        browser.isThere = false;
        if (opens)
            m_fixture->test.prompts.expect(Prompts::Answer::Ok);
        const QRect caret = box.cursorRect(QTextCursor(box.document()->findBlockByNumber(1)));
        const qreal x = caret.left() + (letter + 0.5) * QFontMetricsF(box.font()).horizontalAdvance(u'0');
        QTest::mouseClick(box.viewport(), Qt::LeftButton, modifiers, QPointF(x, caret.center().y()).toPoint());
        QCOMPARE(browser.last.isEmpty(), !opens);
    }

    void tickedWhereItIsShown()
    {
        frmNote *note = wideNote(m_fixture->record(u"first\n[ ] milk\r\n[x] bread"_s));
        note->SaveThisNote();
        auto &text = control<QWidget>(*note, "lblDisplay");
        pressLetter(text, 1, 1, Ctrl);
        pressLetter(text, 2, 0, Ctrl);
        const QString &data = note->GetThisNoteProps()->Data;
        QCOMPARE(data, u"first\n[x] milk\r\n[ ] bread"_s);
        QVERIFY(note->GetThisNoteProps()->SaveTag == 1);
        QTest::keyClick(&NoteFixture::edit(*note), Qt::Key_Escape);
        QCOMPARE(data, u"first\n[x] milk\r\n[ ] bread"_s);
        QTest::keyClick(&NoteFixture::edit(*note), Qt::Key_Z, Qt::ControlModifier);
        note->commitEditing();
        QCOMPARE(data, u"first\r\n[x] milk\r\n[x] bread"_s);
    }

    void tickedInTheEdit()
    {
        QPlainTextEdit &box = NoteFixture::edit(*m_fixture->create(u"[ ] milk\r\nno box"_s));
        QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(box.toPlainText(), u"[ ] milk\nno box"_s);
        QTest::keyClick(&box, Qt::Key_Up);
        QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(box.toPlainText(), u"[x] milk\nno box"_s);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box.toPlainText(), u"[ ] milk\nno box"_s);
    }

    void readOnlyNotesRefuse()
    {
        frmNote *note = wideNote(m_fixture->protectedRecord(u"[ ] milk"_s, true, false));
        NoteFixture::answerPassword({});
        auto &text = control<QWidget>(*note, "lblDisplay");
        QCOMPARE(m_fixture->boxOf([&text] { pressLetter(text, 0, 1, Ctrl); }).text, u"Editing failed."_s);
        QCOMPARE(note->GetThisNoteProps()->Data, u"[ ] milk"_s);
    }

private:
    frmNote *wideNote(clsNoteProps record)
    {
        record.FontName = u"DejaVu Sans Mono"_s;
        frmNote *note = m_fixture->create(record);
        note->resize(600, 300);
        return note;
    }

    std::optional<NoteFixture> m_fixture;
};

QTEST_MAIN(testNoteText)
#include "testNoteText.moc"
