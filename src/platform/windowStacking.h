// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

#include <optional>

class QWidget;

/// What Qt leaves to the window manager: staying on top, coming to the front, staying out of the task bar.
namespace windowStacking
{

/// Requests wait for the next event of the window system, which may be long in coming; this sends them.
void sendNow();
/// In or out of the band of windows above all others; neither hides the window nor moves the focus.
void SetWindowOnTop(QWidget &window, bool onTop);
/// A dialog must not open beneath notes that stay on top: it stays there too while there are such. To be said before
/// it is shown.
void keepAboveNotes(QWidget &dialog);
/// To the front of its band, at once, without the focus, also while another program has it.
void bringForward(QWidget &window);
/// To the front and with the focus.
void SetForegroundWindow(QWidget &window);
/// Keeps the window out of the task bar and the window switcher; to be said after every show.
void skipTaskBar(QWidget &window);
/// Where the window system has a frameless window, in its own pixels, asked of it; the widget itself tells where it
/// asked to be. Nothing where it cannot be asked.
std::optional<QPoint> nativePlaceOf(const QWidget &window);

} // namespace windowStacking
