// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/SizeGrip.h"
#include "drawing/Pictures.h"
#include "platform/WindowDrag.h"

#include <QSignalSpy>
#include <QTest>

class testSizeGrip final : public QObject
{
    Q_OBJECT

private slots:
    void dragsToTheLeastSize();
};

void testSizeGrip::dragsToTheLeastSize()
{
    QWidget window(nullptr, Qt::FramelessWindowHint);
    WindowDrag drag(window);
    drag.setLimits({80, 60}, WindowDrag::Height::Free);
    const Pictures pictures(QStringLiteral(TEST_RESOURCES "/images"));
    SizeGrip grip(pictures, drag, &window);
    grip.setInk(Qt::black);
    QVERIFY(!grip.pixmap().isNull());
    grip.setGeometry(84, 84, 16, 16);
    window.setGeometry(200, 200, 100, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSignalSpy sized(&grip, &SizeGrip::sized);
    QTest::mouseClick(&grip, Qt::LeftButton);
    QTest::mousePress(&grip, Qt::RightButton, {}, {8, 8});
    QTest::mouseRelease(&grip, Qt::RightButton, {}, {50, 50});
    QVERIFY(sized.isEmpty() && window.size() == QSize(100, 100));
    QTest::mousePress(&grip, Qt::LeftButton, {}, {8, 8});
    QTest::mouseRelease(&grip, Qt::LeftButton, {}, {38, -92}); // The release alone brings the last step.
    QCOMPARE(window.geometry(), QRect(200, 200, 130, 60));
    QCOMPARE(sized.count(), 1);
}

QTEST_MAIN(testSizeGrip)
#include "testSizeGrip.moc"
