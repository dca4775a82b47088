// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace
{

/// Repeats follow one another sooner than a person presses a key twice. They are not always called repeats: when
/// another window comes under the key its first one is taken for a press.
constexpr qint64 RepeatMilliseconds = 80;

bool isWatched(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

bool isTextBox(const QWidget *widget)
{
    return qobject_cast<const QPlainTextEdit *>(widget) != nullptr ||
           qobject_cast<const QLineEdit *>(widget) != nullptr;
}

} // namespace

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!watched->isWindowType() || (!isPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (!isWatched(key->key()))
        return false;
    const bool soon = m_key == key->key() && m_sinceLast.isValid() && !m_sinceLast.hasExpired(RepeatMilliseconds);
    m_sinceLast.start();
    m_key = key->key();
    if (!isPress)
        return false;
    QWidget *focus = QApplication::focusWidget();
    if (key->isAutoRepeat() || soon)
        return !isTextBox(focus) || focus != m_pressedIn;
    m_pressedIn = focus;
    return false;
}
