// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/pictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace pictureFile
{
namespace
{

constexpr qint64 MostPixels = 100'000'000;
constexpr int MostMegabytes = 512;

/// By an own list and the name of the reader: what a content is taken for must not open further kinds.
bool isAllowed(const QByteArray &format)
{
    static const std::array<QByteArray, 7> Allowed{"bmp", "dib", "gif", "jpg", "jpeg", "ico", "cur"};
    return std::find(Allowed.begin(), Allowed.end(), format) != Allowed.end();
}

/// Tells when a reader wanted more than there was.
class WatchedFile final : public QFile
{
public:
    using QFile::QFile;

    bool ranOut() const { return m_ranOut; }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        const qint64 got = QFile::readData(data, length);
        m_ranOut = m_ranOut || (got <= 0 && length > 0);
        return got;
    }

private:
    bool m_ranOut = false;
};

/// Of a bitmap whose rows are not packed: all of them are there.
bool hasAllRows(const QByteArray &head, qint64 size)
{
    constexpr int HeadLength = 34;
    constexpr quint32 Packed8 = 1;
    constexpr quint32 Packed4 = 2;
    constexpr quint32 UsualInfo = 40; // Shorter ones have other fields.
    const char *bytes = head.constData();
    if (!head.startsWith("BM") || head.size() < HeadLength || qFromLittleEndian<quint32>(bytes + 14) < UsualInfo)
        return true;
    const auto start = qFromLittleEndian<quint32>(bytes + 10);
    const qint64 width = qFromLittleEndian<qint32>(bytes + 18);
    const qint64 height = qFromLittleEndian<qint32>(bytes + 22);
    const auto bits = qFromLittleEndian<quint16>(bytes + 28);
    const auto packing = qFromLittleEndian<quint32>(bytes + 30);
    const qint64 row = (width * bits + 31) / 32 * 4;
    return packing == Packed8 || packing == Packed4 || start + row * qAbs(height) <= size;
}

/// Goes over a chain of blocks, each with its length before it; false when the file ends before the chain does.
bool skipBlocks(QFile &file)
{
    for (char length = 0; file.getChar(&length) && file.pos() <= file.size();) {
        if (length == 0)
            return true;
        file.skip(static_cast<uchar>(length));
    }
    return false;
}

void skipColours(QFile &file, char flags)
{
    if (flags & 0x80)
        file.skip(qint64(6) << (flags & 0x07)); // 3 bytes for each of 2, 4 ... 256 colours
}

/// Of a gif: its first image is there to its last block.
bool hasFirstImage(QFile &file)
{
    char flags = 0;
    char kind = 0;
    file.seek(10); // behind signature, width and height
    file.getChar(&flags);
    file.skip(2);
    skipColours(file, flags);
    while (file.getChar(&kind)) {
        if (kind == ',') {
            file.skip(8); // place and size
            file.getChar(&flags);
            skipColours(file, flags);
            file.skip(1);
            return skipBlocks(file);
        }
        if (kind != '!')
            return false;
        file.skip(1);
        if (!skipBlocks(file))
            return false;
    }
    return false;
}

/// A picture that ends early is read as half a picture, without a word.
bool isWhole(const QString &path, const QByteArray &format, bool readerRanOut)
{
    constexpr qint64 Head = 64;
    if (format == "jpg" || format == "jpeg")
        return !readerRanOut;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return format == "gif" ? hasFirstImage(file) : hasAllRows(file.read(Head), file.size());
}

QSize decodedSize(QSize size, QSize cover)
{
    const QSize covering = size.scaled(cover, Qt::KeepAspectRatioByExpanding);
    return covering.width() < size.width() ? covering.expandedTo({1, 1}) : size;
}

} // namespace

QImage read(const QString &path, QSize cover)
{
    if (!QFileInfo(path).isFile())
        return {};
    WatchedFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    QImageReader reader(&file);
    reader.setAllocationLimit(MostMegabytes);
    reader.setAutoTransform(true);
    if (!isAllowed(reader.format()))
        return {};
    const QSize size = reader.size();
    if (size.isEmpty() || static_cast<qint64>(size.width()) * size.height() > MostPixels)
        return {};
    reader.setScaledSize(decodedSize(size, cover));
    const QByteArray format = reader.format();
    const QImage picture = reader.read();
    return isWhole(path, format, file.ranOut()) ? picture : QImage();
}

} // namespace pictureFile
