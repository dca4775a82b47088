// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Colours.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace colours
{
namespace
{

constexpr quint32 SystemBit = 0x80000000U;

/// Indices are those of the platform that first defined the values; the order is theirs.
constexpr std::array SystemRoles{
    QPalette::Mid,             // 0 scroll bar
    QPalette::Dark,            // 1 desktop
    QPalette::Highlight,       // 2 active caption
    QPalette::Mid,             // 3 inactive caption
    QPalette::Button,          // 4 menu
    QPalette::Base,            // 5 window
    QPalette::Shadow,          // 6 window frame
    QPalette::ButtonText,      // 7 menu text
    QPalette::Text,            // 8 window text
    QPalette::HighlightedText, // 9 caption text
    QPalette::Button,          // 10 active border
    QPalette::Button,          // 11 inactive border
    QPalette::Dark,            // 12 application workspace
    QPalette::Highlight,       // 13 highlight
    QPalette::HighlightedText, // 14 highlighted text
    QPalette::Button,          // 15 button face
    QPalette::Dark,            // 16 button shadow
    QPalette::Mid,             // 17 grey text
    QPalette::ButtonText,      // 18 button text
    QPalette::Mid,             // 19 inactive caption text
    QPalette::Light,           // 20 button highlight
    QPalette::Shadow,          // 21 3-D dark shadow
    QPalette::Midlight,        // 22 3-D light
    QPalette::ToolTipText,     // 23 tooltip text
    QPalette::ToolTipBase,     // 24 tooltip
};

} // namespace

QColor fromLong(qint32 value)
{
    const auto bits = static_cast<quint32>(value);
    if ((bits & SystemBit) == 0)
        return QColor(static_cast<int>(bits & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
                      static_cast<int>((bits >> 16) & 0xFF));
    const quint32 index = bits & ~SystemBit;
    return QGuiApplication::palette().color(index < SystemRoles.size() ? SystemRoles[index] : QPalette::WindowText);
}

qint32 toLong(const QColor &colour)
{
    return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

} // namespace colours
