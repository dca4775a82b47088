// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/NoteInk.h"
#include "drawing/Twips.h"
#include "drawing/colours.h"
#include "drawing/textShortening.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPalette>

#include <limits>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint32 system(quint32 index)
{
    return static_cast<qint32>(0x80000000U + index);
}

QColor ofPalette(QPalette::ColorRole role)
{
    return QGuiApplication::palette().color(role);
}

/// Evenly over all colours, 0x00BBGGRR.
std::vector<qint32> papers()
{
    std::vector<qint32> all;
    for (const int blue : {0, 64, 128, 192, 255})
        for (const int green : {0, 64, 128, 192, 255})
            for (const int red : {0, 64, 128, 192, 255})
                all.push_back(red | green << 8 | blue << 16);
    return all;
}

} // namespace

/// What is computed to draw: colours, lengths, texts that fit.
class testDrawing final : public QObject
{
    Q_OBJECT

private slots:
    void colourNumbers()
    {
        const auto row = [](const char *name, qint32 value, const QColor &colour) {
            const QColor read = colours::fromLong(value);
            compareRow(name, read.name(), colour.name());
            compareRow(name, colours::fromLong(colours::toLong(read)).name(), colour.name());
        };
        row("red is the lowest byte", 0x000000FF, {255, 0, 0});
        row("blue is the third", 0x00FF0000, {0, 0, 255});
        row("the fourth byte is none", 0x7F030201, {1, 2, 3});
        row("window", system(5), ofPalette(QPalette::Base));
        row("window text", system(8), ofPalette(QPalette::Text));
        row("button text", colours::SystemText, ofPalette(QPalette::ButtonText));
        row("the last", system(24), ofPalette(QPalette::ToolTipBase));
        row("behind the last", system(25), ofPalette(QPalette::WindowText));
        row("all bits", -1, ofPalette(QPalette::WindowText));
    }

    /// As the guidelines for the web compute them.
    void contrasts()
    {
        const auto row = [](const char *name, const QColor &one, const QColor &other, double expected) {
            QVERIFY2(std::abs(colours::contrast(one, other) - expected) < 0.01, name);
            QVERIFY2(std::abs(colours::contrast(other, one) - expected) < 0.01, name);
        };
        row("black and white", Qt::black, Qt::white, 21.0);
        row("equals", {1, 2, 3}, {1, 2, 3}, 1.0);
        row("grey that just suffices", {0x76, 0x76, 0x76}, Qt::white, 4.54);
        row("yellow and white", {255, 255, 0}, Qt::white, 1.07);
        row("blue and black", {0, 0, 255}, Qt::black, 2.44);
    }

    void notesCanBeRead()
    {
        for (const qint32 paper : papers()) {
            const NoteInk ink = NoteInk::from(paper, colours::SystemText);
            const QByteArray name = ink.paper.name().toLatin1();
            QVERIFY2(colours::contrast(ink.ink, ink.paper) >= colours::LeastContrast, name.constData());
            // Even where the user has chosen an ink that cannot be seen, the buttons can.
            const NoteInk hidden = NoteInk::from(paper, paper);
            QVERIFY2(hidden.ink == hidden.paper, name.constData());
            QVERIFY2(colours::contrast(hidden.buttonInk, hidden.paper) >= colours::LeastContrast, name.constData());
            QVERIFY2(hidden.outline != hidden.paper && hidden.titleStrip != hidden.paper, name.constData());
        }
    }

    void marksCanBeSeen()
    {
        for (const qint32 ground : papers()) {
            const QColor on = colours::fromLong(ground);
            const QColor towards = colours::luminance(on) > 0.18 ? Qt::black : Qt::white;
            QVERIFY(colours::contrast(colours::distinct(on, on, towards), on) >= colours::LeastContrast);
            QCOMPARE(colours::distinct(towards, on, Qt::red), towards);
        }
    }

    void displays()
    {
        const auto row = [](const char *name, double dpi, float scaleFactor) {
            const Twips twips(dpi);
            compareRow(name, twips.scaleFactor(), scaleFactor);
            for (int pixels = -70'000; pixels <= 70'000; pixels += 7)
                QVERIFY2(twips.toPixels(twips.fromPixels(pixels)) == pixels, name);
        };
        row("usual", 96, 1.25F);
        row("as designed", 120, 1.0F);
        row("fine", 192, 0.625F);
        row("none", 0, 1.25F);
        row("negative", -72, 1.25F);
    }

    void pixels()
    {
        const Twips twips(96);
        using Float = std::numeric_limits<float>;
        compareRow("half up", twips.toPixels(7.5F), 1);
        compareRow("less than half", twips.toPixels(7.4F), 0);
        compareRow("negative", twips.toPixels(-1440.0F), -96);
        compareRow("no number", twips.toPixels(Float::quiet_NaN()), 0);
        compareRow("infinite", twips.toPixels(Float::infinity()), 1'000'000);
        compareRow("the least", twips.toPixels(Float::lowest()), -1'000'000);
        // Half up also below zero, whatever the display.
        QVERIFY(Twips::design(4440) == 370 && Twips::design(18) == 2 && Twips::design(17.9) == 1);
        QVERIFY(Twips::design(-18) == -1 && Twips::design(-18.1) == -2);
    }

    void longestThatFits_data()
    {
        const Rows<QString> row; // text
        row("Latin", u"The quick brown fox jumps over the lazy dog"_s);
        row("emoji", u"🎂🎂🎂🎂 for 🐕 & 🐈‍⬛"_s);
        row("Japanese", u"今日は天気がいいですね"_s);
        row("empty", u""_s);
        row("lone halves", QString(QChar(0xD83C)) + u"abc"_s + QChar(0xDF82) + u"def"_s);
        row("200 000 characters", u"words and words "_s.repeated(12500));
        row("200 000 without a blank", QString(200000, u'W'));
        row("200 000 that take no room", QString(200000, QChar(0x200B)) + u'W');
    }

    void longestThatFits()
    {
        const auto [text] = fetchRow<QString>();
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
            const bool splits =
                !kept.isEmpty() && kept.back().isHighSurrogate() && text.at(kept.size()).isLowSurrogate();
            QVERIFY2(!splits, qPrintable(QString::number(width)));
            const qsizetype more = kept.size() + (text.at(kept.size()).isHighSurrogate() ? 2 : 1);
            const bool longerThanAScreen = kept.size() > 4000;
            QVERIFY(longerThanAScreen || more > text.size() ||
                    metrics.horizontalAdvance(text.left(more) + u"..."_s) > width);
        }
    }

    void nothingFits()
    {
        for (const int width : {0, 1, -50})
            QCOMPARE(textShortening::shortened(u"text"_s, width, QFont()), u"..."_s);
        QCOMPARE(textShortening::shortened(u"text"_s, 1000, QFont()), u"text"_s);
    }
};

QTEST_MAIN(testDrawing)
#include "testDrawing.moc"
