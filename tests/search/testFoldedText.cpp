// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "search/FoldedText.h"
#include "support/compareRow.h"

using namespace Qt::StringLiterals;

class testFoldedText final : public QObject
{
    Q_OBJECT

private slots:
    void finds()
    {
        const auto row = [](const char *name, const QString &text, const QString &needle, const QString &found) {
            const auto part = FoldedText(text).find(Needle(needle));
            compareRow(name, part ? text.mid(part->at, part->length) : QString(), found);
        };
        row("as it is", u"one two"_s, u"two"_s, u"two"_s);
        row("case", u"Ein ÄPFELCHEN"_s, u"äpfel"_s, u"ÄPFEL"_s);
        row("accents in the text", u"déjà vu"_s, u"deja"_s, u"déjà"_s);
        row("accents in the needle", u"deja vu"_s, u"DÉJÀ"_s, u"deja"_s);
        row("accents of their own", u"e\u0301te\u0301 chaud"_s, u"été"_s, u"e\u0301te\u0301"_s);
        row("sharp s", u"Große Straße"_s, u"STRASSE"_s, u"Straße"_s);
        row("half of a sharp s", u"Maß!"_s, u"mas"_s, u"Maß"_s);
        row("Greek, Cyrillic", u"ΑΛΦΑ Ёлка"_s, u"елка"_s, u"Ёлка"_s);
        row("one sign of two letters", u"con\uFB01rm"_s, u"fir"_s, u"\uFB01r"_s);
        row("beyond the first plane", u"\U00010400\U0001F600"_s, u"\U00010428"_s, u"\U00010400"_s);
        row("half a character", (u"a"_s + QChar(0xD83D) + u"b"_s), u"b"_s, u"b"_s);
        row("nothing", u"text"_s, {}, {});
        row("accents alone", u"text"_s, u"\u0301"_s, {});
        row("longer than the text", u"te"_s, u"tex"_s, {});
        row("no text", {}, u"a"_s, {});
    }

    void goesOnAndRound()
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
    void everyPlaceOfALongText()
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

    void knowsItsText()
    {
        QString text = u"text"_s;
        const FoldedText folded(text);
        QVERIFY(folded.isOf(text));
        text[0] = u'n';
        QVERIFY(!folded.isOf(text));
    }
};

QTEST_APPLESS_MAIN(testFoldedText)
#include "testFoldedText.moc"
