// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/Pictures.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPixmapCache>

#include <cmath>

namespace
{

constexpr int LargestScale = 3;

int scaleFor(qreal devicePixelRatio)
{
    return std::clamp(static_cast<int>(std::ceil(devicePixelRatio - 0.01)), 1, LargestScale);
}

/// Darkness becomes coverage; what the file leaves transparent stays so.
QImage tinted(const QImage &shape, const QColor &ink)
{
    QImage result = shape.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int coverage = (255 - qGray(line[x])) * qAlpha(line[x]) / 255;
            line[x] = qRgba(ink.red(), ink.green(), ink.blue(), coverage * ink.alpha() / 255);
        }
    }
    return result;
}

} // namespace

QString Pictures::pathFor(const QString &fileName, int scale) const
{
    if (scale == 1)
        return path(fileName);
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return path(fileName.left(dot) + QStringLiteral("@%1x").arg(scale) + fileName.mid(dot));
}

QPixmap Pictures::shape(const QString &fileName, const QColor &ink, qreal devicePixelRatio) const
{
    const int scale = scaleFor(devicePixelRatio);
    const QString key = QStringLiteral("quillets/%1/%2/%3").arg(fileName).arg(ink.rgba(), 0, 16).arg(scale);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    // A cache of a few kilobytes a file, so that a new colour costs no reading.
    const QString shapeKey = QStringLiteral("quillets/%1/%2").arg(fileName).arg(scale);
    QPixmap shapePixmap;
    if (!QPixmapCache::find(shapeKey, &shapePixmap)) {
        shapePixmap = QPixmap::fromImage(QImageReader(pathFor(fileName, scale)).read());
        QPixmapCache::insert(shapeKey, shapePixmap);
    }
    pixmap = QPixmap::fromImage(tinted(shapePixmap.toImage(), ink));
    pixmap.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QCursor Pictures::cursor(const QString &fileName) const
{
    auto known = m_cursors.constFind(fileName);
    if (known == m_cursors.constEnd()) {
        const QPixmap shape(path(fileName));
        known = m_cursors.insert(fileName, shape.isNull() ? QCursor(Qt::OpenHandCursor) : QCursor(shape));
    }
    return *known;
}

QIcon Pictures::icon(std::initializer_list<int> sizes) const
{
    QIcon icon;
    for (const int size : sizes)
        icon.addFile(path(QStringLiteral("quillets-%1.png").arg(size)), {size, size});
    return icon;
}

QIcon Pictures::programIcon() const
{
    return icon({16, 24, 32, 48, 64, 128});
}

QIcon Pictures::smallIcon() const
{
    return icon({16, 32});
}
