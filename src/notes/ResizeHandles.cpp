// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/ResizeHandles.h"

#include <QMouseEvent>

namespace
{

constexpr int Edge = 4; ///< Thickness of an L-shaped corner.

using enum WindowDrag::HitTest;
constexpr std::array CornerHits{BottomRight, BottomRight, BottomLeft, BottomLeft, TopLeft, TopRight};
constexpr std::array SideHits{Right, Left};
constexpr std::array TopEndHits{Bottom, Top};

QRegion edgesOfCorner(const QRect &rect, WindowDrag::HitTest held)
{
    const QRect all(QPoint(0, 0), rect.size());
    switch (held) {
    case BottomRight:
        return QRegion(all) - QRegion(all.adjusted(0, 0, -Edge, -Edge));
    case BottomLeft:
        return QRegion(all) - QRegion(all.adjusted(Edge, 0, 0, -Edge));
    case TopLeft:
        return QRegion(all) - QRegion(all.adjusted(Edge, Edge, 0, 0));
    case TopRight:
        return QRegion(all) - QRegion(all.adjusted(0, Edge, -Edge, 0));
    default:
        return all;
    }
}

} // namespace

class ResizeHandle final : public QWidget
{
public:
    ResizeHandle(QWidget *note, const QString &name, WindowDrag::HitTest held, WindowDrag &drag, ResizeHandles &owner)
        : QWidget(note), m_held(held), m_drag(drag), m_owner(owner)
    {
        setObjectName(name);
        setCursor(WindowDrag::cursorFor(held));
    }

    void place(const QRect &rect)
    {
        const bool reshaped = rect.size() != size();
        setGeometry(rect);
        if (reshaped)
            setMask(edgesOfCorner(rect, m_held));
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            m_drag.press(m_held, event->globalPosition().toPoint());
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons().testFlag(Qt::LeftButton))
            m_drag.move(event->globalPosition().toPoint());
    }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        m_drag.move(event->globalPosition().toPoint());
        if (m_drag.release())
            emit m_owner.sized();
    }

private:
    WindowDrag::HitTest m_held;
    WindowDrag &m_drag;
    ResizeHandles &m_owner;
};

ResizeHandles::ResizeHandles(QWidget *note, WindowDrag &drag) : QObject(note), m_note(note), m_drag(drag)
{
    for (size_t i = 0; i < m_corners.size(); ++i)
        m_corners[i] = make(QStringLiteral("lblResize(%1)").arg(i), CornerHits[i]);
    for (size_t i = 0; i < m_sides.size(); ++i) {
        m_sides[i] = make(QStringLiteral("lblResizeh(%1)").arg(i), SideHits[i]);
        m_topEnds[i] = make(QStringLiteral("lblResizev(%1)").arg(i), TopEndHits[i]);
    }
}

ResizeHandle *ResizeHandles::make(const QString &name, WindowDrag::HitTest held)
{
    return new ResizeHandle(m_note, name, held, m_drag, *this);
}

void ResizeHandles::layOut(const NoteLayout &layout)
{
    for (size_t i = 0; i < m_corners.size(); ++i)
        m_corners[i]->place(layout.corners[i]);
    for (size_t i = 0; i < m_sides.size(); ++i) {
        m_sides[i]->place(layout.sides[i]);
        m_topEnds[i]->place(layout.topEnds[i]);
    }
}

void ResizeHandles::setMode(bool rolled, bool locked)
{
    for (size_t i = 0; i < m_corners.size(); ++i)
        m_corners[i]->setVisible(!locked && (!rolled || i == 0 || i == 2));
    for (size_t i = 0; i < m_sides.size(); ++i) {
        m_sides[i]->setVisible(!locked);
        m_topEnds[i]->setVisible(!locked && !rolled);
    }
}

void ResizeHandles::raise()
{
    for (auto *handle : m_sides)
        handle->raise();
    for (auto *handle : m_topEnds)
        handle->raise();
    for (auto *handle : m_corners)
        handle->raise();
}
