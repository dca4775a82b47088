// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteBody.h"
#include "support/failOnWarnings.h"

#include <QWheelEvent>

using namespace Qt::StringLiterals;

/// What is read and what is typed look the same.
class testNoteText final : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void drawsWhatTheTextBoxDraws_data();
    void drawsWhatTheTextBoxDraws();
    void drawsWhereItIsScrolledTo();
    void editsWhereItIsScrolledTo();
    void scrollsByKeys();
    void showsMegabytes_data();
    void showsMegabytes();
};

void testNoteText::drawsWhatTheTextBoxDraws_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << u"2 l milk\r\nBread & butter && jam\r\n\r\nCoffee, whole beans"_s;
    QTest::newRow("words that wrap") << u"A line that is rather long and breaks more than once, and  wide   gaps"_s;
    QTest::newRow("a word that does not fit") << u"Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen end"_s;
    QTest::newRow("tabs") << u"\tone\r\na\tb\tc\td\r\n1234567890123\tx"_s;
    QTest::newRow("blanks at line ends")
        << u"first      \r\n     second                                          third"_s;
    QTest::newRow("Japanese") << u"歯医者に電話する。\r\n保険証番号は青いファイルの中にあります、忘れないこと"_s;
    QTest::newRow("emoji") << u"🎂 at four 🐕\r\nx🎂y"_s;
    QTest::newRow("Hebrew and Arabic") << u"שלום עולם שלום\r\nmixed שלום text\r\nمرحبا بالعالم"_s;
    QTest::newRow("accents and ligatures") << u"Crème brûlée, ½ l, office fluffy e\u0301"_s;
    QTest::newRow("no-break blanks")
        << u"a\u00a0b\u00a0c\u00a0d\u00a0e\u00a0f\u00a0g\u00a0h\u00a0i\u00a0j\u00a0k\u00a0l\u00a0m\u00a0n"_s;
    QTest::newRow("line separators") << u"one\u2028two\u2029three"_s;
    QTest::newRow("other line ends") << u"one\ntwo\rthree\r\n"_s;
    QTest::newRow("zero in the middle") << u"one"_s + QChar() + u"two"_s;
    QTest::newRow("half a character") << u"one"_s + QChar(0xD83C) + u"two"_s;
    QTest::newRow("empty") << u""_s;
}

void testNoteText::drawsWhatTheTextBoxDraws()
{
    QFETCH(QString, text);
    QFont italic(u"DejaVu Serif"_s, 12);
    italic.setItalic(true);
    for (const QFont &font : {QFont(u"DejaVu Sans"_s, 9), italic, QFont(u"DejaVu Sans Mono"_s, 8, QFont::Bold),
                              QFont(u"Liberation Serif"_s, 11), QFont(u"Noto Sans CJK JP"_s, 10)}) {
        QWidget note;
        note.resize(210, 190);
        note.setStyleSheet(u"background: rgb(255, 255, 200)"_s);
        NoteBody body(&note);
        body.setGeometry(note.rect());
        body.setLook(font, NoteInk::from(0xC8FFFF, 0));
        body.setText(text);
        const QImage display = note.grab().toImage();
        body.BeginTextEditing(text);
        const QImage box = note.grab().toImage();
        if (display == box)
            continue;
        QVERIFY(display.save(u"display.png"_s) && box.save(u"box.png"_s));
        QFAIL(qPrintable(u"See display.png and box.png, in "_s + font.family()));
    }
}

void testNoteText::drawsWhereItIsScrolledTo()
{
    QWidget window;
    NoteText text(&window);
    text.resize(200, 100);
    QString lines;
    for (int i = 0; i < 50; ++i)
        lines += QStringLiteral("line %1\r\n").arg(i);
    text.setCaption(lines);
    const QImage top = text.grab().toImage();
    const auto wheel = [&text](int notches) {
        QWheelEvent event({50, 50}, {50, 50}, {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&text, &event);
        return text.grab().toImage();
    };
    QVERIFY(wheel(-1) != top);
    QCOMPARE(wheel(1), top);
    QCOMPARE(wheel(5), top);
    const QImage end = wheel(-1000);
    QVERIFY(end != top);
    QCOMPARE(wheel(-1), end);
}

/// A click into the text, and the end of the edit, move nothing.
void testNoteText::editsWhereItIsScrolledTo()
{
    QWidget note;
    note.resize(210, 120);
    note.setStyleSheet(u"background: rgb(255, 255, 200)"_s);
    NoteBody body(&note);
    body.setGeometry(note.rect());
    body.setLook(QFont(u"DejaVu Sans"_s, 9), NoteInk::from(0xC8FFFF, 0));
    const QString text =
        u"a line that is long enough to be wrapped once at the least\r\n\r\nand one more\r\n"_s.repeated(20);
    body.setText(text);
    note.show();
    auto *shown = note.findChild<NoteText *>();
    for (const TextPlace place : {TextPlace{3, 1}, TextPlace{1000, 0}}) {
        shown->scrollTo(place);
        // Without the margin, where the mark is that there is more.
        const QRect letters = note.rect().adjusted(0, 0, -NoteText::air().right(), 0);
        const QImage display = note.grab(letters).toImage();
        body.BeginTextEditing(text);
        QCOMPARE(note.grab(letters).toImage(), display);
        body.commit();
        QCOMPARE(note.grab(letters).toImage(), display);
    }
}

/// And the mark in the margin is there as long as there is more below.
void testNoteText::scrollsByKeys()
{
    QWidget window;
    NoteText text(&window);
    text.resize(200, 100);
    text.setCaption(u"line\r\n"_s.repeated(49) + u"line"_s);
    const auto press = [&text](int key, Qt::KeyboardModifiers modifiers = {}) {
        return text.scrollByKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
    };
    const auto top = [&text] { return text.place().paragraph; };
    const auto isMarked = [&text] {
        const QImage margin = text.grab(QRect(195, 0, 5, 100)).toImage();
        return margin != QImage(margin).copy(0, 0, 1, 1).scaled(margin.size());
    };
    QVERIFY(press(Qt::Key_Down) && top() == 1);
    QVERIFY(press(Qt::Key_Down, Qt::KeypadModifier) && top() == 2);
    QVERIFY(press(Qt::Key_Up) && top() == 1);
    QVERIFY(press(Qt::Key_PageDown) && top() > 3 && isMarked());
    QVERIFY(press(Qt::Key_PageUp) && top() == 1);
    QVERIFY(press(Qt::Key_End) && top() > 40 && !isMarked());
    const int last = top();
    QVERIFY(press(Qt::Key_Down) && top() == last);
    QVERIFY(press(Qt::Key_Up) && isMarked());
    QVERIFY(press(Qt::Key_Home, Qt::ControlModifier) && top() == 0);
    QVERIFY(!press(Qt::Key_Down, Qt::AltModifier) && !press(Qt::Key_Left) && top() == 0);
    text.setCaption(u"short"_s);
    QVERIFY(press(Qt::Key_End) && top() == 0 && !isMarked());
}

void testNoteText::showsMegabytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << u"a line of usual length\r\n"_s.repeated(200000);
    QTest::newRow("one line") << u"words "_s.repeated(800000);
    QTest::newRow("one word") << QString(5000000, u'x');
    QTest::newRow("empty lines") << u"\r\n"_s.repeated(2500000);
}

void testNoteText::showsMegabytes()
{
    QFETCH(QString, text);
    QWidget window;
    window.resize(200, 150);
    NoteText shown(&window);
    shown.resize(window.size());
    shown.setCaption(text);
    const QImage whole = shown.grab().toImage();
    shown.setCaption(text.left(20000));
    QCOMPARE(shown.grab().toImage(), whole);
}

QTEST_MAIN(testNoteText)
#include "testNoteText.moc"
