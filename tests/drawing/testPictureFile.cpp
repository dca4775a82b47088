// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/pictureFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

QByteArray bytesOf(const QImage &picture, const char *format)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"x"_s);
    picture.save(path, format);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

class testPictureFile final : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void sizes_data();
    void sizes();
    void foldersAndMissingFiles();
    void metafiles_data();
    void metafiles();
};

void testPictureFile::reads_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("shown");
    const QByteArray svg("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QTest::newRow("bitmap") << bitmap(300, 200) << true;
    QTest::newRow("one pixel") << bitmap(1, 1) << true;
    QTest::newRow("bomb") << bomb() << false;
    QTest::newRow("no head") << bitmap(300, 200).first(20) << false;
    QTest::newRow("half a bitmap") << bitmap(300, 200).chopped(1) << false;
    QTest::newRow("packed bitmap") << packedBitmap() << true;
    QTest::newRow("half a packed bitmap") << packedBitmap().chopped(3) << false;
    const QImage large = QImage::fromData(bitmap(300, 200));
    const QByteArray jpeg = bytesOf(large, "JPG");
    QTest::newRow("photograph") << jpeg << true;
    QTest::newRow("photograph with a tail") << jpeg + QByteArray(5000, '\0') << true;
    QTest::newRow("half a photograph") << jpeg.first(jpeg.size() * 3 / 4) << false;
    QFile gif(QStringLiteral(TEST_RESOURCES "/images/menuup.gif"));
    QVERIFY(gif.open(QIODevice::ReadOnly));
    const QByteArray animation = gif.readAll();
    QTest::newRow("gif") << animation << true;
    QTest::newRow("half a gif") << animation.first(animation.size() * 3 / 4) << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("text") << QByteArray("Not a picture at all.") << false;
    QTest::newRow("a kind that is not allowed") << svg << false;
    QTest::newRow("another") << bytesOf(QImage(9, 9, QImage::Format_RGB32), "PNG") << false;
}

void testPictureFile::reads()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, shown);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.bmp"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    QCOMPARE(!pictureFile::read(file.fileName(), {100, 100}).isNull(), shown);
}

void testPictureFile::sizes_data()
{
    QTest::addColumn<QSize>("file");
    QTest::addColumn<QSize>("cover");
    QTest::addColumn<QSize>("read");
    QTest::newRow("wide place") << QSize(400, 300) << QSize(200, 50) << QSize(200, 150);
    QTest::newRow("high place") << QSize(400, 300) << QSize(50, 150) << QSize(200, 150);
    QTest::newRow("larger than the file") << QSize(400, 300) << QSize(4000, 50) << QSize(400, 300);
    QTest::newRow("strip") << QSize(2'000'000, 1) << QSize(3840, 2160) << QSize(2'000'000, 1);
    QTest::newRow("more than is kept") << QSize(40'000, 1'000) << QSize(1'000, 1'000) << QSize(25'298, 632);
}

void testPictureFile::sizes()
{
    QFETCH(QSize, file);
    QFETCH(QSize, cover);
    const QTemporaryDir folder;
    QImage picture(file, QImage::Format_Mono);
    picture.fill(1);
    QVERIFY(picture.save(folder.filePath(u"a.bmp"_s)));
    QTEST(pictureFile::read(folder.filePath(u"a.bmp"_s), cover).size(), "read");
}

void testPictureFile::foldersAndMissingFiles()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"a.bmp"_s));
    QVERIFY(pictureFile::read(folder.filePath(u"a.bmp"_s), {9, 9}).isNull());
    QVERIFY(pictureFile::read(folder.filePath(u"b.bmp"_s), {9, 9}).isNull());
}

void testPictureFile::metafiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("converter");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("shown");
    const QByteArray wmf = QByteArray::fromHex("d7cdc69a") + QByteArray(60, '\0');
    const QByteArray emf = QByteArray::fromHex("01000000") + QByteArray(36, '\0') + " EMF" + QByteArray(60, '\0');
    const QByteArray draws = "#!/bin/sh\nfor last; do :; done\ntest -f \"$last\" && cp \"$0.png\" picture.png\n";
    QTest::newRow("wmf") << wmf << QByteArray("wmf2gd") << draws << true;
    QTest::newRow("emf") << emf << QByteArray("inkscape") << draws << true;
    QTest::newRow("emf for one that draws wmf") << emf << QByteArray("wmf2gd") << draws << false;
    QTest::newRow("no converter") << wmf << QByteArray("another") << draws << false;
    QTest::newRow("too long") << wmf + QByteArray(17'000'000, '\0') << QByteArray("wmf2gd") << draws << false;
    QTest::newRow("fails") << wmf << QByteArray("wmf2gd") << QByteArray("#!/bin/sh\nexit 1\n") << false;
    QTest::newRow("writes no picture") << wmf << QByteArray("wmf2gd") << QByteArray("#!/bin/sh\ndate >picture.png\n")
                                       << false;
    QTest::newRow("writes without end") << wmf << QByteArray("wmf2gd")
                                        << QByteArray("#!/bin/sh\nexec cat /dev/zero >picture.png\n") << false;
}

void testPictureFile::metafiles()
{
#ifdef Q_OS_UNIX
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, converter);
    QFETCH(QByteArray, script);
    const QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    write(u"drawing"_s, bytes);
    write(QString::fromLatin1(converter), script);
    QImage::fromData(bitmap(30, 20)).save(folder.filePath(QString::fromLatin1(converter) + u".png"_s));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ":/bin");
    const QImage picture = pictureFile::read(folder.filePath(u"drawing"_s), {100, 100});
    qputenv("PATH", path);
    QTEST(!picture.isNull(), "shown");
#else
    QSKIP("The converters of this test are scripts of a shell.");
#endif
}

QTEST_MAIN(testPictureFile)
#include "testPictureFile.moc"
