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
    const QFileInfo file(path);
    const QString key = QStringLiteral("quillets/background/%1/%2/%3")
                            .arg(file.absoluteFilePath())
                            .arg(file.size())
                            .arg(file.lastModified().toMSecsSinceEpoch());
    m_scaled = {};
    if (!QPixmapCache::find(key, &m_picture)) {
        m_picture = QPixmap::fromImage(pictureFile::read(path, wholeDesktop()));
        if (!m_picture.isNull())
            QPixmapCache::insert(key, m_picture);
    }
    update();
    return !m_picture.isNull();
}

void BackgroundPicture::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const qreal ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size()) * ratio).toSize();
    const QSize covering = m_picture.size().scaled(wanted, Qt::KeepAspectRatioByExpanding);
    if (m_scaled.size() != covering) {
        m_scaled = m_picture.scaled(covering, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(1);
    }
    const QRect source(QPoint((covering.width() - wanted.width()) / 2, (covering.height() - wanted.height()) / 2),
                       wanted);
    QPainter(this).drawPixmap(rect(), m_scaled, source);
}
