// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/PictureButton.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

PictureButton::PictureButton(const Pictures &pictures, const QString &name, QWidget *parent)
    : QAbstractButton(parent), m_pictures(pictures)
{
    setObjectName(name);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    connect(this, &QAbstractButton::clicked, this, &PictureButton::beginPress);
}

void PictureButton::setPictures(const QString &up, const QString &down)
{
    m_up = up;
    m_down = down;
    update();
}

void PictureButton::setDown(bool down)
{
    setAccessibleDescription(down ? tr("On") : tr("Off"));
    if (m_downAtRest == down)
        return;
    m_downAtRest = down;
    update();
}

void PictureButton::setInk(const QColor &ink)
{
    if (m_ink == ink)
        return;
    m_ink = ink;
    update();
}

void PictureButton::setPause(std::chrono::milliseconds pause)
{
    m_pause = pause;
}

void PictureButton::setCommandsOnRelease(bool onRelease)
{
    m_onRelease = onRelease;
}

void PictureButton::setCaption(const QString &caption)
{
    setToolTip(caption);
    setAccessibleName(caption);
}

void PictureButton::command()
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == window())
        emit commanded();
}

void PictureButton::beginPress()
{
    if (m_onRelease) {
        command();
        return;
    }
    if (m_pressed)
        return;
    m_pressed = true;
    update();
    QTimer::singleShot(m_pause, this, &PictureButton::finishPress);
}

void PictureButton::finishPress()
{
    m_pressed = false;
    update();
    command();
}

void PictureButton::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (!event->isAccepted() || !isEnabled())
        return;
    emit pressedDown();
    if (!m_onRelease)
        beginPress();
}

void PictureButton::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (m_onRelease && event->isAccepted() && isEnabled() && rect().contains(event->position().toPoint()))
        command();
}

void PictureButton::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
}

void PictureButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter || event->key() == Qt::Key_Space) && !event->isAutoRepeat())
        beginPress();
    else
        QAbstractButton::keyPressEvent(event);
}

void PictureButton::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}

void PictureButton::enterEvent(QEnterEvent *event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void PictureButton::leaveEvent(QEvent *event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void PictureButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor ink = m_ink;
    ink.setAlphaF(isEnabled() ? 0.85F : 0.35F);
    if ((underMouse() && isEnabled()) || hasFocus()) {
        QColor wash = m_ink;
        wash.setAlphaF(hasFocus() ? 0.18F : 0.10F);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(wash);
        painter.drawRoundedRect(rect(), 3, 3);
    }
    const QString &file = m_pressed != m_downAtRest ? m_down : m_up;
    const QPixmap picture = m_pictures.shape(file, ink, devicePixelRatioF());
    QSize size = picture.deviceIndependentSize().toSize();
    if (size.width() > width() || size.height() > height()) {
        size.scale(this->size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
    }
    painter.drawPixmap(QRect((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(), size.height()),
                       picture);
}
