// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/BackgroundPicture.h"

#include "drawing/pictureFile.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QScreen>

namespace
{

/// No side shorter than a screen's longest needs.
/// Decoded pictures that are shown are kept up to this; the usual 10 MB hold no photograph on a large screen.
constexpr int CacheKilobytes = 256 * 1024;

QSize wholeDesktop()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen->virtualSize() * screen->devicePixelRatio();
}

} // namespace

BackgroundPicture::BackgroundPicture(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("imgDisplay"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

bool BackgroundPicture::load(const QString &path)
{
    // A picture that nobody shows any more leaves the cache by itself.
    QPixmapCache::setCacheLimit(CacheKilobytes);
    const QFileInfo file(path);
    m_key = QStringLiteral("quillets/background/%1/%2/%3")
                .arg(file.absoluteFilePath())
                .arg(file.size())
                .arg(file.lastModified().toMSecsSinceEpoch());
    m_scaled = {};
    if (!QPixmapCache::find(m_key, &m_picture)) {
        m_picture = QPixmap::fromImage(pictureFile::read(path, wholeDesktop()));
        if (!m_picture.isNull())
            QPixmapCache::insert(m_key, m_picture);
    }
    update();
    return !m_picture.isNull();
}

void BackgroundPicture::scaleTo(QSize size)
{
    const QString key = QStringLiteral("%1/%2x%3").arg(m_key).arg(size.width()).arg(size.height());
    if (QPixmapCache::find(key, &m_scaled))
        return;
    m_scaled = m_picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_scaled.setDevicePixelRatio(1);
    QPixmapCache::insert(key, m_scaled);
}

void BackgroundPicture::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const qreal ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size()) * ratio).toSize();
    const QSize covering = m_picture.size().scaled(wanted, Qt::KeepAspectRatioByExpanding);
    if (m_scaled.size() != covering)
        scaleTo(covering);
    const QRect source(QPoint((covering.width() - wanted.width()) / 2, (covering.height() - wanted.height()) / 2),
                       wanted);
    QPainter(this).drawPixmap(rect(), m_scaled, source);
}
