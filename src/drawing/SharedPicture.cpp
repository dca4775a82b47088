// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/SharedPicture.h"

#include "drawing/pictureFile.h"

#include <QPainter>
#include <QPixmapCache>

#include <cmath>

using namespace std::chrono_literals;

namespace
{

constexpr auto GrowingRests = 200ms;
constexpr double MostStretched = 2.0; ///< More looks poor even while the mouse moves.
constexpr double MuchTooLarge = 0.5;

QImage forDrawing(QImage picture)
{
    picture.convertTo(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return picture;
}

/// Nothing is copied; valid as long as the picture is.
QImage view(const QImage &picture, const QRect &part)
{
    const qsizetype pixel = picture.depth() / 8;
    return QImage(picture.constScanLine(part.y()) + part.x() * pixel, part.width(), part.height(),
                  picture.bytesPerLine(), picture.format());
}

/// How much larger than itself the picture covers a place of this size.
double stretchOf(const QImage &picture, QSize size)
{
    return qMax(static_cast<double>(size.width()) / picture.width(),
                static_cast<double>(size.height()) / picture.height());
}

QRectF shownPart(const QImage &picture, QSize size)
{
    QRectF part(QPointF(), QSizeF(size) / stretchOf(picture, size));
    part.moveCenter(QRectF(picture.rect()).center());
    return part;
}

/// The picture, or that which has a half, a quarter, ... of its sides and is still enough: scaling a large one for
/// each small place would take long.
QImage nearest(const QImage &picture, const QString &key, QSize size)
{
    const int halvings = qBound(0, std::ilogb(1 / stretchOf(picture, size)), 16);
    const QSize less(picture.width() >> halvings, picture.height() >> halvings);
    const qint64 kilobytes = static_cast<qint64>(less.width()) * less.height() * picture.depth() / 8 / 1024;
    if (halvings == 0 || less.isEmpty() || kilobytes > QPixmapCache::cacheLimit() / 2)
        return picture;
    const QString lessKey = QStringLiteral("%1/less/%2x%3").arg(key).arg(less.width()).arg(less.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(lessKey, &pixmap)) {
        pixmap = QPixmap::fromImage(picture.scaled(less, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QPixmapCache::insert(lessKey, pixmap);
    }
    return pixmap.toImage();
}

} // namespace

SharedPicture::SharedPicture(QString path, QString key, const std::function<void()> &rested)
    : m_path(std::move(path)), m_key(std::move(key))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(GrowingRests);
    connect(&m_rest, &QTimer::timeout, this, [this, rested] {
        fit();
        rested();
    });
}

void SharedPicture::cover(const QObject *who, QSize size)
{
    // One that is rolled up opens again.
    if (size.isEmpty() || m_places.value(who) == size)
        return;
    m_places.insert(who, size);
    m_rest.start();
}

void SharedPicture::leave(const QObject *who)
{
    m_places.remove(who);
    m_rest.start();
}

QSize SharedPicture::largest() const
{
    QSize size(1, 1);
    for (const QSize &place : m_places)
        size = size.expandedTo(place);
    return size;
}

double SharedPicture::stretch(QSize size) const
{
    return stretchOf(m_picture, size);
}

bool SharedPicture::isReadable()
{
    if (m_picture.isNull())
        read(largest());
    return !m_picture.isNull();
}

void SharedPicture::fit()
{
    m_rest.stop();
    if (m_picture.isNull())
        return;
    const QSize size = largest();
    if (stretch(size) > 1 && !m_isAll) {
        read(size);
    } else if (stretch(size) < MuchTooLarge) {
        m_picture = m_picture.scaled((QSizeF(m_picture.size()) * stretch(size)).toSize().expandedTo(size),
                                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_isAll = false;
    }
}

void SharedPicture::read(QSize size)
{
    QImage picture = forDrawing(pictureFile::read(m_path, size));
    m_isAll = picture.width() < size.width() || picture.height() < size.height();
    // A file that has gone meanwhile leaves what there is.
    if (picture.isNull())
        return;
    m_picture = std::move(picture);
    emit sharpened();
}

bool SharedPicture::draw(QPainter &painter, const QRect &place, QSize size)
{
    if (m_picture.isNull() || size.isEmpty())
        return true;
    if (stretch(size) > MostStretched)
        fit();
    const double factor = stretch(size);
    const QRectF part = shownPart(m_picture, size);
    m_rest.start();
    if (factor > 1 && !m_isAll) {
        drawWaiting(painter, place, part);
        return false;
    }
    if (factor == 1)
        painter.drawImage(place, m_picture, QRect(part.topLeft().toPoint(), size));
    else
        painter.drawPixmap(place, scaled(size, part));
    return true;
}

void SharedPicture::drawWaiting(QPainter &painter, const QRect &place, const QRectF &part) const
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Of a long strip the part alone: painters count its pixels with sixteen bits.
    const QRect whole = part.toAlignedRect() & m_picture.rect();
    painter.drawImage(QRectF(place), view(m_picture, whole), part.translated(-whole.topLeft()));
    painter.restore();
}

/// Kept by size for a while, within the few megabytes of the cache that the program has for all its pictures.
QPixmap SharedPicture::scaled(QSize size, const QRectF &part) const
{
    const QString key = QStringLiteral("%1/%2x%3").arg(m_key).arg(size.width()).arg(size.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    if (stretch(size) < 1) {
        const QImage from = nearest(m_picture, m_key, size);
        const QRect whole = shownPart(from, size).toAlignedRect() & from.rect();
        pixmap = QPixmap::fromImage(view(from, whole).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawWaiting(painter, QRect(QPoint(), size), part);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}
