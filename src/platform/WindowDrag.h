// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QWidget>

#include <optional>

/// Moves or sizes a frameless window while the left button is held. Done by hand where the place of a window is the
/// program's to set (no snapping, exact places), by the window system where it is not, or turns out not to be. Feed it
/// the mouse events of whatever the window is held by.
class WindowDrag
{
public:
    /// What is held, numbered as window systems number the parts of a window's frame.
    enum class HitTest
    {
        Caption = 2,
        Left = 10,
        Right = 11,
        Top = 12,
        TopLeft = 13,
        TopRight = 14,
        Bottom = 15,
        BottomLeft = 16,
        BottomRight = 17
    };

    enum class Height
    {
        Free,
        Fixed
    };

    explicit WindowDrag(QWidget &window) : m_window(&window) {}

    /// Smallest size, in pixels, that a drag gives the window, and whether its height may change.
    void setLimits(QSize smallest, Height height);

    void press(HitTest held, QPoint globalPosition);
    /// True when the window's place or size changed.
    bool move(QPoint globalPosition);
    /// True when something was dragged since the press.
    bool release();
    bool isActive() const { return m_active; }
    /// To be said when the pointer comes back to the window: takes over where the window system has put it, which it
    /// may not have told. True when it was put elsewhere.
    bool settle();

    static Qt::CursorShape cursorFor(HitTest held);

private:
    QRect dragged(QPoint by) const;
    bool handOver();
    void watchPlace();

    QPointer<QWidget> m_window;
    QSize m_smallest{1, 1};
    Height m_height = Height::Free;
    bool m_active = false;
    bool m_dragged = false;
    HitTest m_held = HitTest::Caption;
    QPoint m_from;
    QRect m_start;
    std::optional<QPoint> m_nativeStart;
    QElapsedTimer m_asking;
};
