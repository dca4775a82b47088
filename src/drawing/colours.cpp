// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/colours.h"

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

double luminance(const QColor &colour)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto channel = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue())};
}

QColor distinct(const QColor &colour, const QColor &ground, const QColor &towards)
{
    constexpr int Steps = 8;
    for (int step = 0; step < Steps; ++step) {
        const QColor candidate = mixed(colour, towards, static_cast<double>(step) / Steps);
        if (contrast(candidate, ground) >= LeastContrast)
            return candidate;
    }
    return towards;
}

} // namespace colours
