// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QWidget;

/// Lets the Enter key and the space bar do one thing for one press: held down they would answer the box that the press
/// has opened, press the button again that the box goes back to, and type into whatever comes next. Only the text box
/// that got the press gets the repeats. To be installed on the application.
class HeldKeys final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_sinceLast; ///< Press or release of that key.
    int m_key = 0;
    QPointer<QWidget> m_pressedIn;
};
