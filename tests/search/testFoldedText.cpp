// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "search/FoldedText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class testFoldedText final : public QObject
{
    Q_OBJECT

private slots:
    void finds_data();
    void finds();
    void goesOnAndRound();
    void everyPlaceOfALongText();
    void knowsItsText();
};

void testFoldedText::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("needle");
    QTest::addColumn<QString>("found"); // empty for none
    QTest::newRow("as it is") << u"one two"_s << u"two"_s << u"two"_s;
    QTest::newRow("case") << u"Ein ÄPFELCHEN"_s << u"äpfel"_s << u"ÄPFEL"_s;
    QTest::newRow("accents in the text") << u"déjà vu"_s << u"deja"_s << u"déjà"_s;
    QTest::newRow("accents in the needle") << u"deja vu"_s << u"DÉJÀ"_s << u"deja"_s;
    QTest::newRow("accents of their own") << u"e\u0301te\u0301 chaud"_s << u"été"_s << u"e\u0301te\u0301"_s;
    QTest::newRow("sharp s") << u"Große Straße"_s << u"STRASSE"_s << u"Straße"_s;
    QTest::newRow("half of a sharp s") << u"Maß!"_s << u"mas"_s << u"Maß"_s;
    QTest::newRow("Greek, Cyrillic") << u"ΑΛΦΑ Ёлка"_s << u"елка"_s << u"Ёлка"_s;
    QTest::newRow("one sign of two letters") << u"con\uFB01rm"_s << u"fir"_s << u"\uFB01r"_s;
    QTest::newRow("beyond the first plane") << u"\U00010400\U0001F600"_s << u"\U00010428"_s << u"\U00010400"_s;
    QTest::newRow("half a character") << (u"a"_s + QChar(0xD83D) + u"b"_s) << u"b"_s << u"b"_s;
    QTest::newRow("nothing") << u"text"_s << QString() << QString();
    QTest::newRow("accents alone") << u"text"_s << u"\u0301"_s << QString();
    QTest::newRow("longer than the text") << u"te"_s << u"tex"_s << QString();
    QTest::newRow("no text") << QString() << u"a"_s << QString();
}

void testFoldedText::finds()
{
    QFETCH(QString, text);
    QFETCH(QString, needle);
    const auto part = FoldedText(text).find(Needle(needle));
    const QString found = part ? text.mid(part->at, part->length) : QString();
    QTEST(found, "found");
}

void testFoldedText::goesOnAndRound()
{
    const FoldedText text(u"é, E, e\u0301"_s);
    const Needle needle(u"e"_s);
    QCOMPARE(text.find(needle), (TextPart{0, 1}));
    QCOMPARE(text.find(needle, 1), (TextPart{3, 1}));
    QCOMPARE(text.find(needle, 4), (TextPart{6, 2}));
    QCOMPARE(text.find(needle, 8), std::nullopt);
    QCOMPARE(text.findRound(needle, 8), (TextPart{0, 1}));
    QCOMPARE(FoldedText(u"a"_s).findRound(needle, 0), std::nullopt);
}

/// The places of the text and of what it is folded to drift apart.
void testFoldedText::everyPlaceOfALongText()
{
    QString text;
    for (int i = 0; i < 400; ++i)
        text += u"ß é e\u0301 \uFB01 <%1>"_s.arg(i);
    const FoldedText folded(text);
    for (int i = 0; i < 400; ++i) {
        const QString number = u"<%1>"_s.arg(i);
        const auto part = folded.find(Needle(number), text.indexOf(number) - 3);
        QVERIFY(part && text.mid(part->at, part->length) == number);
    }
}

void testFoldedText::knowsItsText()
{
    QString text = u"text"_s;
    const FoldedText folded(text);
    QVERIFY(folded.isOf(text));
    text[0] = u'n';
    QVERIFY(!folded.isOf(text));
}

QTEST_APPLESS_MAIN(testFoldedText)
#include "testFoldedText.moc"
