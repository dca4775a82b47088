// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWheelEvent>

#include <utility>

/// Counts the notches of a wheel that is turned with Ctrl; touch pads tell parts of them.
class FontWheel
{
public:
    static bool isMeant(const QWheelEvent &event) { return event.modifiers() == Qt::ControlModifier; }
    /// Whole notches since the last ones; up is positive.
    int notches(const QWheelEvent &event)
    {
        constexpr int StepsPerNotch = 120;
        if (!isMeant(event))
            return m_turned = 0;
        m_turned += event.angleDelta().y();
        const int whole = m_turned / StepsPerNotch;
        m_turned -= whole * StepsPerNotch;
        return whole;
    }

private:
    int m_turned = 0;
};
