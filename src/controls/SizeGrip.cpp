// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/SizeGrip.h"

#include "drawing/Pictures.h"
#include "platform/WindowDrag.h"

#include <QMouseEvent>

namespace
{
constexpr auto Held = WindowDrag::HitTest::BottomRight;
}

SizeGrip::SizeGrip(const Pictures &pictures, WindowDrag &drag, QWidget *parent)
    : QLabel(parent), m_pictures(pictures), m_drag(drag)
{
    setObjectName(QStringLiteral("imgResize"));
    setCursor(WindowDrag::cursorFor(Held));
}

void SizeGrip::setInk(const QColor &ink)
{
    setPixmap(m_pictures.shape(QStringLiteral("resize.gif"), ink, devicePixelRatioF()));
}

void SizeGrip::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_drag.press(Held, event->globalPosition().toPoint());
}

void SizeGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        m_drag.move(event->globalPosition().toPoint());
}

void SizeGrip::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // The last step may come with the release alone.
    m_drag.move(event->globalPosition().toPoint());
    if (m_drag.release())
        emit sized();
}
