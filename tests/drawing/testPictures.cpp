// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/PictureButton.h"
#include "drawing/SharedPictures.h"
#include "drawing/pictureFile.h"
#include "support/TestHome.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QAccessible>
#include <QDialog>
#include <QPainter>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

QByteArray bytesOf(const QImage &picture, const char *format)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x"_s);
    picture.save(path, format);
    return TestHome::contents(path);
}

QByteArray bitmap(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return bytesOf(picture, "BMP");
}

/// Four pixels in one run of equal ones, and the mark of the end.
QByteArray packedBitmap()
{
    return QByteArray::fromHex("424d00000000000000003e000000"                                     // file
                               "2800000004000000010000000100080001000000000000000000000000000000" // picture
                               "0200000000000000"                                                 // colours used
                               "0000ff00ffffff00"                                                 // colours
                               "04010001");
}

/// A head that claims far more than the file holds.
QByteArray bomb()
{
    QByteArray bytes = bitmap(4, 4);
    bytes.replace(18, 8, QByteArray("\x30\x75\0\0\x30\x75\0\0", 8)); // 30000 x 30000
    return bytes;
}

} // namespace

/// The pictures of notes, which are anybody's files, and those of buttons.
class testPictures final : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        const Rows<QByteArray, bool> row; // bytes, is shown
        const QByteArray large = bitmap(300, 200);
        row("bitmap", large, true);
        row("one pixel", bitmap(1, 1), true);
        row("bomb", bomb(), false);
        row("no head", large.first(20), false);
        row("half a bitmap", large.chopped(1), false);
        row("packed bitmap", packedBitmap(), true);
        row("half a packed bitmap", packedBitmap().chopped(3), false);
        const QByteArray jpeg = bytesOf(QImage::fromData(large), "JPG");
        row("photograph", jpeg, true);
        row("photograph with a tail", jpeg + QByteArray(5000, '\0'), true);
        row("half a photograph", jpeg.first(jpeg.size() * 3 / 4), false);
        const QByteArray animation = TestHome::contents(QStringLiteral(TEST_RESOURCES "/images/menuup.gif"));
        row("gif", animation, true);
        row("half a gif", animation.first(animation.size() * 3 / 4), false);
        row("empty", {}, false);
        row("text", "Not a picture at all.", false);
        row("a kind that is not allowed", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", false);
        row("another", bytesOf(QImage(9, 9, QImage::Format_RGB32), "PNG"), false);
    }

    void reads()
    {
        const auto [bytes, isShown] = fetchRow<QByteArray, bool>();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.bmp"_s);
        TestHome::setContents(path, bytes);
        QCOMPARE(!pictureFile::read(path, {100, 100}).isNull(), isShown);
        QVERIFY(QFile::remove(path) && pictureFile::read(path, {9, 9}).isNull());
        QVERIFY(QDir().mkdir(path) && pictureFile::read(path, {9, 9}).isNull());
    }

    void sizes()
    {
        const auto row = [](const char *name, QSize file, QSize cover, QSize read) {
            const QTemporaryDir folder;
            QImage picture(file, QImage::Format_Mono);
            picture.fill(1);
            QVERIFY(picture.save(folder.filePath(u"a.bmp"_s)));
            compareRow(name, pictureFile::read(folder.filePath(u"a.bmp"_s), cover).size(), read);
        };
        row("wide place", {400, 300}, {200, 50}, {200, 150});
        row("high place", {400, 300}, {50, 150}, {200, 150});
        row("larger than the file", {400, 300}, {4000, 50}, {400, 300});
        row("strip", {2'000'000, 1}, {3840, 2160}, {2'000'000, 1});
        row("more than is kept", {40'000, 1'000}, {1'000, 1'000}, {25'298, 632});
    }

    /// One decode for all, sharp again when a place that has grown rests; another one when the file is another.
    void sharedPicture()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.bmp"_s);
        TestHome::setContents(path, bitmap(400, 300));
        SharedPictures pictures([] {});
        const auto picture = pictures.of(path);
        QCOMPARE(pictures.of(path), picture);
        const QSignalSpy sharpened(picture.get(), &SharedPicture::sharpened);
        QImage canvas(400, 300, QImage::Format_RGB32);
        QPainter painter(&canvas);
        const auto isSharp = [&](const QObject &place, QSize size) {
            picture->cover(&place, size);
            canvas.fill(Qt::blue);
            const bool sharp = picture->draw(painter, QRect(QPoint(), size), size);
            return sharp && canvas.pixelColor(size.width() - 1, size.height() - 1) == Qt::red;
        };
        const QObject one;
        const QObject other;
        picture->cover(&one, {40, 30});
        QVERIFY(picture->isReadable() && isSharp(one, {40, 30}) && isSharp(other, {20, 20}));
        QCOMPARE(sharpened.size(), 1);
        QVERIFY(!isSharp(other, {80, 60}));
        QTRY_COMPARE(sharpened.size(), 2);
        QVERIFY(isSharp(other, {80, 60}) && isSharp(one, {40, 30}));
        // Too large to look at stretched: not waited for.
        QVERIFY(isSharp(other, {400, 300}));
        QCOMPARE(sharpened.size(), 3);
        TestHome::setContents(path, "no picture");
        QVERIFY(pictures.of(path) != picture && !pictures.of(path)->isReadable());
    }

    void metafiles()
    {
#ifdef Q_OS_UNIX
        const auto row = [](const char *name, const QByteArray &bytes, const QString &converter,
                            const QByteArray &script, bool shown) {
            const QTemporaryDir folder;
            const QString command = folder.filePath(converter);
            TestHome::setContents(folder.filePath(u"drawing"_s), bytes);
            TestHome::setContents(command, script);
            QFile::setPermissions(command, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QImage::fromData(bitmap(30, 20)).save(command + u".png"_s);
            const QByteArray path = qgetenv("PATH");
            qputenv("PATH", QFile::encodeName(folder.path()) + ":/bin");
            const QImage picture = pictureFile::read(folder.filePath(u"drawing"_s), {100, 100});
            qputenv("PATH", path);
            compareRow(name, !picture.isNull(), shown);
        };
        const QByteArray wmf = QByteArray::fromHex("d7cdc69a") + QByteArray(60, '\0');
        const QByteArray emf = QByteArray::fromHex("01000000") + QByteArray(36, '\0') + " EMF" + QByteArray(60, '\0');
        const QByteArray draws = "#!/bin/sh\nfor last; do :; done\ntest -f \"$last\" && cp \"$0.png\" picture.png\n";
        row("wmf", wmf, u"wmf2gd"_s, draws, true);
        row("emf", emf, u"inkscape"_s, draws, true);
        row("emf for one that draws wmf", emf, u"wmf2gd"_s, draws, false);
        row("no converter", wmf, u"another"_s, draws, false);
        row("too long", wmf + QByteArray(17'000'000, '\0'), u"wmf2gd"_s, draws, false);
        row("fails", wmf, u"wmf2gd"_s, "#!/bin/sh\nexit 1\n", false);
        row("writes no picture", wmf, u"wmf2gd"_s, "#!/bin/sh\ndate >picture.png\n", false);
        row("writes without end", wmf, u"wmf2gd"_s, "#!/bin/sh\nexec cat /dev/zero >picture.png\n", false);
#else
        QSKIP("The converters of this test are scripts of a shell.");
#endif
    }

    void modalWindowsDropThePress()
    {
        const auto row = [](const char *name, bool ownIsModal, bool otherComes, int commands) {
            const Pictures pictures;
            QDialog own;
            own.setModal(ownIsModal);
            PictureButton button(pictures, u"imgTest"_s, &own);
            button.setPause(20ms);
            own.show();
            const QSignalSpy commanded(&button, &PictureButton::commanded);
            QDialog other;
            other.setModal(true);
            QTest::mouseClick(&button, Qt::LeftButton);
            if (otherComes)
                other.show();
            QTest::qWait(60);
            compareRow(name, int(commanded.count()), commands);
            // Nor does the dropped press come later, and the button works on.
            other.close();
            QTest::mouseClick(&button, Qt::LeftButton);
            QTRY_VERIFY2(commanded.count() == commands + 1, name);
        };
        row("none", false, false, 1);
        row("of another window", false, true, 0);
        row("its own", true, false, 1);
        row("over its own", true, true, 0);
    }

    void stateIsHeard()
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
    void pictureFits()
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
        QVERIFY(qAbs(whole.width() * small.height() - whole.height() * small.width()) <=
                whole.width() + whole.height());
    }
};

QTEST_MAIN(testPictures)
#include "testPictures.moc"
