// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/WindowDrag.h"

#include "platform/DisplayPlatform.h"

#include <QWindow>

namespace
{

Qt::Edges edgesOf(WindowDrag::HitTest held)
{
    using enum WindowDrag::HitTest;
    switch (held) {
    case Left:
        return Qt::LeftEdge;
    case Right:
        return Qt::RightEdge;
    case Top:
        return Qt::TopEdge;
    case TopLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case TopRight:
        return Qt::TopEdge | Qt::RightEdge;
    case Bottom:
        return Qt::BottomEdge;
    case BottomLeft:
        return Qt::BottomEdge | Qt::LeftEdge;
    case BottomRight:
        return Qt::BottomEdge | Qt::RightEdge;
    case Caption:
        break;
    }
    return {};
}

} // namespace

Qt::CursorShape WindowDrag::cursorFor(HitTest held)
{
    using enum HitTest;
    switch (held) {
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    case Top:
    case Bottom:
        return Qt::SizeVerCursor;
    case TopLeft:
    case BottomRight:
        return Qt::SizeFDiagCursor;
    case TopRight:
    case BottomLeft:
        return Qt::SizeBDiagCursor;
    case Caption:
        break;
    }
    return Qt::ArrowCursor;
}

void WindowDrag::setLimits(QSize smallest, bool heightFixed)
{
    m_smallest = smallest;
    m_heightFixed = heightFixed;
}

void WindowDrag::press(HitTest held, QPoint globalPosition)
{
    m_held = held;
    m_from = globalPosition;
    m_start = m_window->geometry();
    m_dragged = false;
    m_active = true;
    QWindow *handle = m_window->windowHandle();
    if (!displayPlatform::hidesPlaces() || handle == nullptr)
        return;
    const Qt::Edges edges = edgesOf(held);
    m_active = !(edges == Qt::Edges() ? handle->startSystemMove() : handle->startSystemResize(edges));
}

QRect WindowDrag::dragged(QPoint by) const
{
    const Qt::Edges edges = edgesOf(m_held);
    if (edges == Qt::Edges())
        return m_start.translated(by);
    QRect result = m_start;
    if (edges & Qt::LeftEdge)
        result.setLeft(qMin(m_start.left() + by.x(), m_start.right() + 1 - m_smallest.width()));
    if (edges & Qt::RightEdge)
        result.setWidth(qMax(m_start.width() + by.x(), m_smallest.width()));
    if (m_heightFixed)
        return result;
    if (edges & Qt::TopEdge)
        result.setTop(qMin(m_start.top() + by.y(), m_start.bottom() + 1 - m_smallest.height()));
    if (edges & Qt::BottomEdge)
        result.setHeight(qMax(m_start.height() + by.y(), m_smallest.height()));
    return result;
}

bool WindowDrag::move(QPoint globalPosition)
{
    if (!m_active || m_window == nullptr)
        return false;
    const QRect target = dragged(globalPosition - m_from);
    if (target == m_window->geometry())
        return false;
    m_dragged = true;
    if (target.size() == m_start.size() && m_held == HitTest::Caption)
        m_window->move(target.topLeft());
    else
        m_window->setGeometry(target);
    return true;
}

bool WindowDrag::release()
{
    const bool dragged = m_active && m_dragged;
    m_active = false;
    m_dragged = false;
    return dragged;
}
