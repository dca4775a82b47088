// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/PictureThumbnail.h"

#include "drawing/pictureFile.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace
{
constexpr QSize Shown(128, 80);
}

PictureThumbnail::PictureThumbnail(QWidget *parent) : QLabel(tr("No picture"), parent)
{
    setObjectName(QStringLiteral("imgPicture"));
    setAccessibleName(tr("Background picture"));
    setFrameShape(QFrame::StyledPanel);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setForegroundRole(QPalette::PlaceholderText);
    setFixedSize(Shown + QSize(2, 2) * frameWidth());
}

void PictureThumbnail::setPath(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    const int request = ++m_request;
    setText(path.isEmpty() ? tr("No picture") : tr("Reading ..."));
    if (path.isEmpty())
        return;
    const QSize cover = Shown * devicePixelRatioF();
    QThreadPool::globalInstance()->start([self = QPointer(this), path, cover, request] {
        const QImage picture = pictureFile::read(path, cover);
        QMetaObject::invokeMethod(
            qApp,
            [self, request, picture] {
                if (self != nullptr)
                    self->showPicture(request, picture);
            },
            Qt::QueuedConnection);
    });
}

void PictureThumbnail::showPicture(int request, const QImage &picture)
{
    if (request != m_request)
        return;
    if (picture.isNull()) {
        setText(tr("This picture\ncannot be shown."));
        return;
    }
    const QSize room = Shown * devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(picture);
    if (pixmap.width() > room.width() || pixmap.height() > room.height())
        pixmap = pixmap.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(pixmap);
}
