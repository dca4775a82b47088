// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/textShortening.h"

#include <QFontMetricsF>
#include <QTest>

using namespace Qt::StringLiterals;

class testTextShortening final : public QObject
{
    Q_OBJECT

private slots:
    void longestThatFits_data();
    void longestThatFits();
    void nothingFits();
};

void testTextShortening::longestThatFits_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("Latin") << u"The quick brown fox jumps over the lazy dog"_s;
    QTest::newRow("emoji") << u"🎂🎂🎂🎂 for 🐕 & 🐈‍⬛"_s;
    QTest::newRow("Japanese") << u"今日は天気がいいですね"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("lone halves") << QString(QChar(0xD83C)) + u"abc"_s + QChar(0xDF82) + u"def"_s;
    QTest::newRow("200 000 characters") << u"words and words "_s.repeated(12500);
    QTest::newRow("200 000 without a blank") << QString(200000, u'W');
    QTest::newRow("200 000 that take no room") << QString(200000, QChar(0x200B)) + u'W';
}

void testTextShortening::longestThatFits()
{
    QFETCH(QString, text);
    const QFont font(u"DejaVu Sans"_s, 9);
    const QFontMetricsF metrics(font);
    for (int width = 10; width < 320; width += 7) {
        const QString shown = textShortening::shortened(text, width, font);
        if (shown == text) {
            QVERIFY(metrics.horizontalAdvance(text) <= width);
            continue;
        }
        QVERIFY(shown.endsWith(u"..."));
        const QString kept = shown.chopped(3);
        QVERIFY(text.startsWith(kept));
        QVERIFY(kept.isEmpty() || metrics.horizontalAdvance(shown) <= width);
        const bool splits = !kept.isEmpty() && kept.back().isHighSurrogate() && text.at(kept.size()).isLowSurrogate();
        QVERIFY2(!splits, qPrintable(QString::number(width)));
        const qsizetype more = kept.size() + (text.at(kept.size()).isHighSurrogate() ? 2 : 1);
        const bool longerThanAScreen = kept.size() > 4000;
        QVERIFY(longerThanAScreen || more > text.size() ||
                metrics.horizontalAdvance(text.left(more) + u"..."_s) > width);
    }
}

void testTextShortening::nothingFits()
{
    for (const int width : {0, 1, -50})
        QCOMPARE(textShortening::shortened(u"text"_s, width, QFont()), u"..."_s);
    QCOMPARE(textShortening::shortened(u"text"_s, 1000, QFont()), u"text"_s);
}

QTEST_MAIN(testTextShortening)
#include "testTextShortening.moc"
