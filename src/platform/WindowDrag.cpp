// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/WindowDrag.h"

#include "platform/displayPlatform.h"
#include "platform/windowStacking.h"

#include <QWindow>

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::milliseconds LongestAnswer = 150ms;

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

void WindowDrag::setLimits(QSize smallest, Height height)
{
    m_smallest = smallest;
    m_height = height;
}

void WindowDrag::press(HitTest held, QPoint globalPosition)
{
    m_held = held;
    m_from = globalPosition;
    m_start = m_window->geometry();
    m_dragged = false;
    m_asking.invalidate();
    m_nativeStart.reset();
    m_active = !displayPlatform::hidesPlaces() || !handOver();
    if (displayPlatform::isX11InWayland())
        m_nativeStart = windowStacking::nativePlaceOf(*m_window);
}

/// True when the window system goes on with what was begun.
bool WindowDrag::handOver()
{
    QWindow *handle = m_window->windowHandle();
    if (handle == nullptr)
        return false;
    const Qt::Edges edges = edgesOf(m_held);
    return edges == Qt::Edges() ? handle->startSystemMove() : handle->startSystemResize(edges);
}

/// Some compositors let X11 programs place no window once it is open, and tell neither that nor where they move it
/// themselves: after a while without any effect they are asked to move it.
void WindowDrag::watchPlace()
{
    if (!m_nativeStart || m_held != HitTest::Caption || m_window->pos() == m_start.topLeft())
        return;
    if (!m_asking.isValid())
        return m_asking.start();
    if (windowStacking::nativePlaceOf(*m_window) != m_nativeStart) {
        m_nativeStart.reset();
        return;
    }
    if (!m_asking.hasExpired(LongestAnswer.count()))
        return;
    m_window->move(m_start.topLeft());
    m_active = !handOver();
}

bool WindowDrag::settle()
{
    if (m_active || !m_nativeStart || m_window == nullptr)
        return false;
    const QPoint nativeStart = *std::exchange(m_nativeStart, std::nullopt);
    const QPoint by = windowStacking::nativePlaceOf(*m_window).value_or(nativeStart) - nativeStart;
    const QPoint place = m_start.topLeft() + by / m_window->devicePixelRatio();
    if (place == m_window->pos())
        return false;
    m_window->move(place);
    return true;
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
    if (m_height == Height::Fixed)
        return result;
    if (edges & Qt::TopEdge)
        result.setTop(qMin(m_start.top() + by.y(), m_start.bottom() + 1 - m_smallest.height()));
    if (edges & Qt::BottomEdge)
        result.setHeight(qMax(m_start.height() + by.y(), m_smallest.height()));
    return result;
}

bool WindowDrag::move(QPoint globalPosition)
{
    if (m_active && m_window != nullptr)
        watchPlace();
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
    // Behind the last move of a drag there may be no event that would send it.
    windowStacking::sendNow();
    return true;
}

bool WindowDrag::release()
{
    const bool dragged = m_active && m_dragged;
    m_active = false;
    m_dragged = false;
    return dragged;
}
