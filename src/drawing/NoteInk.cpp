// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/NoteInk.h"

#include "drawing/colours.h"

namespace
{
constexpr double LeastButtonContrast = 2.0;
}

NoteInk NoteInk::from(qint32 backColor, qint32 foreColor)
{
    using colours::mixed;
    NoteInk ink;
    ink.paper = colours::fromLong(backColor);
    ink.ink = colours::fromLong(foreColor);
    const bool dark = colours::luminance(ink.paper) < 0.18;
    const QColor readable = dark ? QColor(0xF2, 0xF2, 0xF2) : QColor(0x22, 0x22, 0x22);
    const bool chosenByUser = foreColor >= 0;
    if (!chosenByUser && colours::contrast(ink.ink, ink.paper) < colours::LeastContrast)
        ink.ink = readable;
    ink.buttonInk = colours::contrast(ink.ink, ink.paper) < LeastButtonContrast ? readable : ink.ink;
    ink.faintInk = mixed(ink.ink, ink.paper, 0.25);
    ink.titleStrip = dark ? mixed(ink.paper, Qt::white, 0.10) : mixed(ink.paper, Qt::black, 0.07);
    ink.titleLine = mixed(ink.paper, readable, 0.35);
    ink.toolLine = mixed(ink.paper, readable, 0.20);
    ink.outline = mixed(ink.paper, dark ? Qt::white : Qt::black, 0.35);
    return ink;
}
