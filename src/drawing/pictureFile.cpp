// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/pictureFile.h"

#include "drawing/metafile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>

namespace pictureFile
{
namespace
{

constexpr qint64 MostPixels = 100'000'000;
constexpr qint64 MostPixelsKept = 16'000'000; ///< 64 MB
constexpr int MostMegabytes = 512;

/// By an own list and the name of the reader: what a content is taken for must not open further kinds.
bool isAllowed(const QByteArray &format)
{
    static const std::array<QByteArray, 7> allowed{"bmp", "dib", "gif", "jpg", "jpeg", "ico", "cur"};
    return std::find(allowed.begin(), allowed.end(), format) != allowed.end();
}

/// Tells when a reader wanted more than there was: a picture that ends early is read as half a picture, without a word.
class WatchedFile final : public QFile
{
public:
    using QFile::QFile;

    void forget() { m_cameShort = m_ranOut = false; }
    /// Some readers ask for what they need, row by row; others for whatever comes next, until they have enough.
    bool wasEnoughFor(const QByteArray &format) const { return format == "bmp" ? !m_cameShort : !m_ranOut; }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        const qint64 got = QFile::readData(data, length);
        m_cameShort = m_cameShort || got < length;
        m_ranOut = m_ranOut || (got <= 0 && length > 0);
        return got;
    }

private:
    bool m_cameShort = false;
    bool m_ranOut = false;
};

QSize decodedSize(QSize size, QSize cover)
{
    // In floating point: what covers a square with a strip of pixels is no number of pixels.
    const double width = size.width();
    const double height = size.height();
    const double factor =
        qMin(qMax(cover.width() / width, cover.height() / height), std::sqrt(MostPixelsKept / (width * height)));
    return factor < 1 ? QSize(qRound(width * factor), qRound(height * factor)).expandedTo({1, 1}) : size;
}

/// False for what is of no size or of too much.
bool isBounded(QSize size)
{
    return !size.isEmpty() && static_cast<qint64>(size.width()) * size.height() <= MostPixels;
}

QImage readMetafile(const QString &path, const QByteArray &kind, QSize cover)
{
    // How wide it is for its height is seen afterwards.
    QByteArray png = metafile::toPng(path, kind, qMax(1, 2 * qMax(cover.width(), cover.height())));
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "png");
    reader.setAllocationLimit(MostMegabytes);
    if (!isBounded(reader.size()))
        return {};
    reader.setScaledSize(decodedSize(reader.size(), cover));
    return reader.read();
}

} // namespace

QImage read(const QString &path, QSize cover)
{
    if (!QFileInfo(path).isFile())
        return {};
    WatchedFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    if (const QByteArray kind = metafile::kind(file.peek(metafile::HeadLength)); !kind.isEmpty())
        return readMetafile(path, kind, cover);
    QImageReader reader(&file);
    reader.setAllocationLimit(MostMegabytes);
    reader.setAutoTransform(true);
    if (!isAllowed(reader.format()))
        return {};
    const QSize size = reader.size();
    if (!isBounded(size))
        return {};
    const bool isTurned = (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    reader.setScaledSize(decodedSize(size, isTurned ? cover.transposed() : cover));
    const QByteArray format = reader.format();
    file.forget(); // Asking for the size may have read to the end.
    const QImage picture = reader.read();
    return file.wasEnoughFor(format) ? picture : QImage();
}

} // namespace pictureFile
