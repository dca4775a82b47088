// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteInk.h"

#include "platform/Colours.h"

#include <cmath>

namespace
{

constexpr double LeastContrast = 3.0;

QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto channel = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue())};
}

/// Relative luminance, 0 to 1.
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

} // namespace

NoteInk NoteInk::from(qint32 backColor, qint32 foreColor)
{
    NoteInk ink;
    ink.paper = colours::fromLong(backColor);
    ink.ink = colours::fromLong(foreColor);
    const bool dark = luminance(ink.paper) < 0.18;
    const QColor readable = dark ? QColor(0xF2, 0xF2, 0xF2) : QColor(0x22, 0x22, 0x22);
    const bool chosenByUser = foreColor >= 0;
    if (!chosenByUser && contrast(ink.ink, ink.paper) < LeastContrast)
        ink.ink = readable;
    ink.faintInk = mixed(ink.ink, ink.paper, 0.25);
    ink.titleStrip = dark ? mixed(ink.paper, Qt::white, 0.10) : mixed(ink.paper, Qt::black, 0.07);
    ink.titleLine = mixed(ink.paper, readable, 0.35);
    ink.toolLine = mixed(ink.paper, readable, 0.20);
    ink.outline = mixed(ink.paper, Qt::black, 0.35);
    return ink;
}
