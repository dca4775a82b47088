// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/WindowDrag.h"

#include <QTest>

using HitTest = WindowDrag::HitTest;
using Height = WindowDrag::Height;

Q_DECLARE_METATYPE(HitTest)
Q_DECLARE_METATYPE(Height)

namespace
{

const QRect Start(200, 100, 300, 200);
constexpr QSize Smallest(120, 80);
constexpr QPoint Held(40, 50);

} // namespace

class testWindowDrag final : public QObject
{
    Q_OBJECT

private slots:
    void edges_data();
    void edges();
    void comesBack();
    void windowMayGo();
};

void testWindowDrag::edges_data()
{
    QTest::addColumn<HitTest>("held");
    QTest::addColumn<Height>("height");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QRect>("expected");
    const auto row = [](const char *name, HitTest held, QPoint by, QRect expected, Height height = Height::Free) {
        QTest::newRow(name) << held << height << by << expected;
    };
    row("caption", HitTest::Caption, {-300, 15}, {-100, 115, 300, 200});
    row("left", HitTest::Left, {-20, 9}, {180, 100, 320, 200});
    row("left beyond the smallest", HitTest::Left, {500, 0}, {380, 100, 120, 200});
    row("right", HitTest::Right, {30, 9}, {200, 100, 330, 200});
    row("right beyond the smallest", HitTest::Right, {-500, 0}, {200, 100, 120, 200});
    row("top", HitTest::Top, {9, -10}, {200, 90, 300, 210});
    row("top beyond the smallest", HitTest::Top, {0, 500}, {200, 220, 300, 80});
    row("bottom", HitTest::Bottom, {9, 25}, {200, 100, 300, 225});
    row("bottom beyond the smallest", HitTest::Bottom, {0, -500}, {200, 100, 300, 80});
    row("top left", HitTest::TopLeft, {10, 20}, {210, 120, 290, 180});
    row("top right", HitTest::TopRight, {10, 20}, {200, 120, 310, 180});
    row("bottom left", HitTest::BottomLeft, {10, 20}, {210, 100, 290, 220});
    row("bottom right beyond the smallest", HitTest::BottomRight, {-999, -999}, {200, 100, 120, 80});
    row("corner of a rolled note", HitTest::BottomRight, {10, 20}, {200, 100, 310, 200}, Height::Fixed);
    row("top of a rolled note", HitTest::Top, {10, 20}, Start, Height::Fixed);
}

void testWindowDrag::edges()
{
    QFETCH(HitTest, held);
    QFETCH(Height, height);
    QFETCH(QPoint, by);
    QFETCH(QRect, expected);
    QWidget window;
    window.setGeometry(Start);
    WindowDrag drag(window);
    drag.setLimits(Smallest, height);
    QVERIFY(!drag.move(Held + by) && window.geometry() == Start);
    drag.press(held, Held);
    drag.move(Held + by / 2); // A drag goes from where it began, not from step to step.
    drag.move(Held + by);
    QCOMPARE(window.geometry(), expected);
    QVERIFY(!drag.move(Held + by));
    QCOMPARE(drag.release(), expected != Start);
    QVERIFY(!drag.isActive() && !drag.move(Held) && !drag.release());
}

void testWindowDrag::comesBack()
{
    QWidget window;
    window.setGeometry(Start);
    WindowDrag drag(window);
    drag.setLimits(Smallest, Height::Free);
    drag.press(HitTest::BottomRight, Held);
    QVERIFY(drag.move(Held - QPoint(999, 999)) && drag.move(Held) && window.geometry() == Start);
    drag.release();
    drag.press(HitTest::Caption, Held);
    QVERIFY(!drag.release());
}

void testWindowDrag::windowMayGo()
{
    auto window = std::make_unique<QWidget>();
    WindowDrag drag(*window);
    drag.press(HitTest::Caption, Held);
    window.reset();
    QVERIFY(!drag.move({}) && !drag.settle() && !drag.release());
}

QTEST_MAIN(testWindowDrag)
#include "testWindowDrag.moc"
