// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>

/// Calls when an editor whose window lost the focus has not got it back after a moment: as a box closes, the window
/// manager may pass the focus round among the windows before it gives it back.
template <typename Left> void onceFocusStaysLost(QWidget *editor, Left left)
{
    constexpr std::chrono::milliseconds Moment{100};
    QTimer::singleShot(Moment, editor, [editor, left] {
        if (!editor->hasFocus())
            left();
    });
}
