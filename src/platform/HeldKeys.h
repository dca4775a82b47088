// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

/// Lets the Enter key and the space bar do one thing for one press: held down they would answer the box that the press
/// has opened, press the button again that the box goes back to, and type into whatever comes next. Only the text box
/// that got the press gets the repeats. What a person presses anew is never taken for a repeat, however quickly. To be
/// installed on the application.
class HeldKeys final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isRepeat(const QKeyEvent &press) const;
    /// False for a repeat that is not for who has the focus.
    bool takePress(const QKeyEvent &press);

    int m_key = 0;           ///< The last that was pressed, if it is one of those watched; else 0.
    quint64 m_last = 0;      ///< Milliseconds of its last press or release, by the clock of the window system.
    bool m_released = false; ///< That was a release.
    QPointer<QWidget> m_pressedIn;
};
