// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>

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
    QImageReader reader(path);
    reader.setAllocationLimit(MostMegabytes);
    reader.setAutoTransform(true);
    if (!isAllowed(reader.format()))
        return {};
    const QSize size = reader.size();
    if (size.isEmpty() || static_cast<qint64>(size.width()) * size.height() > MostPixels)
        return {};
    reader.setScaledSize(decodedSize(size, cover));
    return reader.read();
}

} // namespace pictureFile
