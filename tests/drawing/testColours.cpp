// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/NoteInk.h"
#include "drawing/colours.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTest>

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

class testColours final : public QObject
{
    Q_OBJECT

private slots:
    void longs_data();
    void longs();
    void contrasts_data();
    void contrasts();
    void notesCanBeRead();
    void marksCanBeSeen();
};

void testColours::longs_data()
{
    QTest::addColumn<qint32>("value");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("red is the lowest byte") << 0x000000FF << QColor(255, 0, 0);
    QTest::newRow("blue is the third") << 0x00FF0000 << QColor(0, 0, 255);
    QTest::newRow("the fourth byte is none") << 0x7F030201 << QColor(1, 2, 3);
    QTest::newRow("window") << system(5) << ofPalette(QPalette::Base);
    QTest::newRow("window text") << system(8) << ofPalette(QPalette::Text);
    QTest::newRow("button text") << colours::SystemText << ofPalette(QPalette::ButtonText);
    QTest::newRow("the last") << system(24) << ofPalette(QPalette::ToolTipBase);
    QTest::newRow("behind the last") << system(25) << ofPalette(QPalette::WindowText);
    QTest::newRow("all bits") << qint32(-1) << ofPalette(QPalette::WindowText);
}

void testColours::longs()
{
    QFETCH(qint32, value);
    QFETCH(QColor, colour);
    QCOMPARE(colours::fromLong(value).rgb(), colour.rgb());
    QCOMPARE(colours::fromLong(colours::toLong(colour)).rgb(), colour.rgb());
}

void testColours::contrasts_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("expected"); // as the guidelines for the web compute it
    QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("equals") << QColor(1, 2, 3) << QColor(1, 2, 3) << 1.0;
    QTest::newRow("grey that just suffices") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("yellow and white") << QColor(255, 255, 0) << QColor(Qt::white) << 1.07;
    QTest::newRow("blue and black") << QColor(0, 0, 255) << QColor(Qt::black) << 2.44;
}

void testColours::contrasts()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, expected);
    QVERIFY(std::abs(colours::contrast(one, other) - expected) < 0.01);
    QVERIFY(std::abs(colours::contrast(other, one) - expected) < 0.01);
}

void testColours::notesCanBeRead()
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

void testColours::marksCanBeSeen()
{
    for (const qint32 ground : papers()) {
        const QColor on = colours::fromLong(ground);
        const QColor towards = colours::luminance(on) > 0.18 ? Qt::black : Qt::white;
        QVERIFY(colours::contrast(colours::distinct(on, on, towards), on) >= colours::LeastContrast);
        QCOMPARE(colours::distinct(towards, on, Qt::red), towards);
    }
}

QTEST_MAIN(testColours)
#include "testColours.moc"
