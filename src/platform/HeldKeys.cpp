// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>

namespace
{

// Repeats are not always called repeats: when another window comes under the key its first one is taken for a press.

/// Presses without a release between them follow one another as soon as this only while the key is held.
constexpr quint64 RepeatMilliseconds = 80;
/// A window system that sends a release with each repeat sends both at one moment; no finger is as quick.
constexpr quint64 SameMomentMilliseconds = 2;

bool isWatched(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

/// Also for an editable combo box and a number field, which have the focus in place of their line of text.
bool takesText(const QWidget *widget)
{
    return widget != nullptr && widget->testAttribute(Qt::WA_InputMethodEnabled);
}

} // namespace

bool HeldKeys::isRepeat(const QKeyEvent &press) const
{
    if (press.isAutoRepeat())
        return true;
    const quint64 limit = m_released ? SameMomentMilliseconds : RepeatMilliseconds;
    return press.key() == m_key && press.timestamp() >= m_last && press.timestamp() - m_last < limit;
}

bool HeldKeys::takePress(const QKeyEvent &press)
{
    const bool repeats = isRepeat(press);
    m_key = press.key();
    m_last = press.timestamp();
    m_released = false;
    QWidget *focus = QApplication::focusWidget();
    if (repeats)
        return takesText(focus) && focus == m_pressedIn;
    m_pressedIn = focus;
    return true;
}

bool HeldKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!watched->isWindowType() || (!isPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (isPress && isWatched(key.key()))
        return !takePress(key);
    if (isPress) {
        m_key = 0;
    } else if (key.key() == m_key) {
        m_last = key.timestamp();
        m_released = true;
    }
    return false;
}
