// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/BackgroundPicture.h"

#include <QPainter>

BackgroundPicture::BackgroundPicture(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("imgDisplay"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

BackgroundPicture::~BackgroundPicture()
{
    letGo();
}

void BackgroundPicture::letGo()
{
    if (m_picture == nullptr)
        return;
    m_picture->disconnect(this);
    m_picture->leave(this);
}

QSize BackgroundPicture::pixels() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

bool BackgroundPicture::setPicture(std::shared_ptr<SharedPicture> picture)
{
    letGo();
    m_picture = std::move(picture);
    m_isFirst = true;
    m_picture->cover(this, pixels());
    connect(m_picture.get(), &SharedPicture::sharpened, this, [this] {
        if (!m_isSharp)
            update();
    });
    update();
    return m_picture->isReadable();
}

void BackgroundPicture::paintEvent(QPaintEvent *)
{
    if (m_picture == nullptr)
        return;
    m_picture->cover(this, pixels());
    if (std::exchange(m_isFirst, false))
        m_picture->fit();
    QPainter painter(this);
    m_isSharp = m_picture->draw(painter, rect(), pixels());
}
