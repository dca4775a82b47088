// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/PictureButton.h"

#include <QAccessible>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class testPictureButton final : public QObject
{
    Q_OBJECT

private slots:
    void modalWindowsDropThePress_data();
    void modalWindowsDropThePress();
    void stateIsHeard();
    void pictureFits();
};

void testPictureButton::modalWindowsDropThePress_data()
{
    QTest::addColumn<bool>("ownIsModal");
    QTest::addColumn<bool>("otherComes");
    QTest::addColumn<int>("commands");
    QTest::newRow("none") << false << false << 1;
    QTest::newRow("of another window") << false << true << 0;
    QTest::newRow("its own") << true << false << 1;
    QTest::newRow("over its own") << true << true << 0;
}

void testPictureButton::modalWindowsDropThePress()
{
    QFETCH(bool, ownIsModal);
    QFETCH(bool, otherComes);
    const Pictures pictures;
    QDialog own;
    own.setModal(ownIsModal);
    auto *button = new PictureButton(pictures, u"imgTest"_s, &own);
    button->setPause(20ms);
    own.show();
    QSignalSpy commanded(button, &PictureButton::commanded);
    QDialog other;
    other.setModal(true);
    QTest::mouseClick(button, Qt::LeftButton);
    if (otherComes)
        other.show();
    QTest::qWait(60);
    QTEST(int(commanded.count()), "commands");
    // Nor does the dropped press come later, and the button works on.
    other.close();
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(int(commanded.count()), otherComes ? 1 : 2);
}

void testPictureButton::stateIsHeard()
{
    const Pictures pictures;
    QWidget window;
    PictureButton button(pictures, u"imgAlarm"_s, &window);
    button.setCaption(u"Alarm Settings"_s);
    const auto heard = [&button] {
        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&button);
        return told->text(QAccessible::Name) + u", "_s + told->text(QAccessible::Description);
    };
    for (const bool down : {false, true, false}) {
        button.setDown(down);
        QCOMPARE(heard(), down ? u"Alarm Settings, On"_s : u"Alarm Settings, Off"_s);
    }
}

/// All of the picture is seen however small the button is.
void testPictureButton::pictureFits()
{
    const Pictures pictures(QStringLiteral(PICTURES));
    QWidget window;
    PictureButton button(pictures, u"imgDelete"_s, &window);
    button.setPictures(u"deleteup.gif"_s, u"deletedown.gif"_s);
    const auto drawn = [&button](int side) {
        button.resize(side, 28);
        QImage image(side, 28, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        button.render(&image, {}, {}, {});
        QRect seen;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < side; ++x)
                if (image.pixelColor(x, y).alpha() > 0)
                    seen |= QRect(x, y, 1, 1);
        return seen;
    };
    const QRect whole = drawn(28);
    const QRect small = drawn(18);
    QVERIFY(small.height() < whole.height());
    QVERIFY(qAbs(whole.width() * small.height() - whole.height() * small.width()) <= whole.width() + whole.height());
}

QTEST_MAIN(testPictureButton)
#include "testPictureButton.moc"
