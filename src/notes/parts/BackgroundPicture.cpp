// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/BackgroundPicture.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QScreen>

#include <array>

namespace {

constexpr qint64 MostPixels = 100'000'000;
constexpr int MostMegabytes = 512;

bool isAllowed(const QByteArray &format)
{
    static const std::array<QByteArray, 7> Allowed{"bmp", "dib", "gif", "jpg", "jpeg", "ico", "cur"};
    return std::find(Allowed.begin(), Allowed.end(), format) != Allowed.end();
}

/// No side shorter than a screen's longest needs, none longer than the picture's own.
QSize decodedSize(QSize size)
{
    const QSize screen = QGuiApplication::primaryScreen()->virtualSize() * QGuiApplication::primaryScreen()->devicePixelRatio();
    const QSize covering = size.scaled(screen, Qt::KeepAspectRatioByExpanding);
    return covering.width() < size.width() ? covering : size;
}

QPixmap decoded(const QString &path)
{
    QImageReader reader(path);
    reader.setAllocationLimit(MostMegabytes);
    reader.setAutoTransform(true);
    if (!isAllowed(reader.format()))
        return {};
    const QSize size = reader.size();
    if (!size.isValid() || static_cast<qint64>(size.width()) * size.height() > MostPixels)
        return {};
    reader.setScaledSize(decodedSize(size));
    return QPixmap::fromImage(reader.read());
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
        m_picture = file.isFile() ? decoded(path) : QPixmap();
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
    const QRect source(QPoint((covering.width() - wanted.width()) / 2, (covering.height() - wanted.height()) / 2), wanted);
    QPainter(this).drawPixmap(rect(), m_scaled, source);
}
