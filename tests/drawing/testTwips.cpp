// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/Twips.h"

#include <QTest>

#include <limits>

class testTwips final : public QObject
{
    Q_OBJECT

private slots:
    void displays_data();
    void displays();
    void pixels_data();
    void pixels();
    void design();
};

void testTwips::displays_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<float>("scaleFactor");
    QTest::newRow("usual") << 96.0 << 1.25F;
    QTest::newRow("as designed") << 120.0 << 1.0F;
    QTest::newRow("fine") << 192.0 << 0.625F;
    QTest::newRow("none") << 0.0 << 1.25F;
    QTest::newRow("negative") << -72.0 << 1.25F;
}

void testTwips::displays()
{
    QFETCH(double, dpi);
    QFETCH(float, scaleFactor);
    const Twips twips(dpi);
    QCOMPARE(twips.scaleFactor(), scaleFactor);
    for (int pixels = -70'000; pixels <= 70'000; pixels += 7)
        QCOMPARE(twips.toPixels(twips.fromPixels(pixels)), pixels);
}

void testTwips::pixels_data()
{
    QTest::addColumn<float>("length");
    QTest::addColumn<int>("expected");
    QTest::newRow("half up") << 7.5F << 1;
    QTest::newRow("less than half") << 7.4F << 0;
    QTest::newRow("negative") << -1440.0F << -96;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 1'000'000;
    QTest::newRow("the least") << std::numeric_limits<float>::lowest() << -1'000'000;
}

void testTwips::pixels()
{
    QFETCH(float, length);
    QTEST(Twips(96).toPixels(length), "expected");
}

/// Half up also below zero, whatever the display.
void testTwips::design()
{
    QVERIFY(Twips::design(4440) == 370 && Twips::design(18) == 2 && Twips::design(17.9) == 1);
    QVERIFY(Twips::design(-18) == -1 && Twips::design(-18.1) == -2);
}

QTEST_APPLESS_MAIN(testTwips)
#include "testTwips.moc"
