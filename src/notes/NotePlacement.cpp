// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NotePlacement.h"

#include "notes/NoteLayout.h"

#include <cmath>

namespace
{

constexpr int CascadeOffset = 24;
constexpr int CascadeLength = 12;
/// So much of a title bar must be on a screen for the note to be within reach.
constexpr int ReachableTitle = 40;

QRect united(const std::vector<QRect> &screens)
{
    QRect whole;
    for (const QRect &screen : screens)
        whole = whole.united(screen);
    return whole;
}

int usableLength(float stored, const Twips &twips, int fallback, int smallest, int largest)
{
    const int pixels = twips.toPixels(stored);
    return std::clamp(std::isfinite(stored) && pixels > 0 ? pixels : fallback, smallest, qMax(smallest, largest));
}

bool titleReachable(const QRect &geometry, const std::vector<QRect> &screens)
{
    const QRect title(geometry.topLeft(), QSize(geometry.width(), NoteLayout::rolledHeight()));
    return std::any_of(screens.begin(), screens.end(), [&](const QRect &screen) {
        const QRect seen = screen.intersected(title);
        return seen.height() == title.height() && seen.width() >= qMin(ReachableTitle, title.width());
    });
}

bool strictlyInside(const QRect &geometry, const QRect &whole)
{
    return geometry.top() > whole.top() && geometry.top() < whole.top() + whole.height() - geometry.height() &&
           geometry.left() > whole.left() && geometry.left() < whole.left() + whole.width() - geometry.width();
}

const QRect &nearestScreen(QPoint to, const std::vector<QRect> &screens)
{
    const auto distance = [to](const QRect &screen) {
        const QPoint inside(std::clamp(to.x(), screen.left(), screen.right()),
                            std::clamp(to.y(), screen.top(), screen.bottom()));
        return (to - inside).manhattanLength();
    };
    return *std::min_element(screens.begin(), screens.end(),
                             [&](const QRect &a, const QRect &b) { return distance(a) < distance(b); });
}

QRect broughtInto(QRect geometry, const QRect &screen)
{
    const int right = qMax(screen.left() + 1, screen.left() + screen.width() - geometry.width() - 1);
    const int bottom = qMax(screen.top() + 1, screen.top() + screen.height() - geometry.height() - 1);
    geometry.moveTo(std::clamp(geometry.left(), screen.left() + 1, right),
                    std::clamp(geometry.top(), screen.top() + 1, bottom));
    return geometry;
}

bool isPlace(float coordinate)
{
    return std::isfinite(coordinate);
}

} // namespace

NotePlacement NotePlacement::of(const clsNoteProps &note, const Twips &twips, const std::vector<QRect> &screens,
                                QSize fallback, QPoint cascadeFrom, int step)
{
    const QRect whole = united(screens);
    const QSize smallest = NoteLayout::smallestSize();
    const int smallestHeight = note.FrmScrolledOn ? NoteLayout::rolledHeight() : smallest.height();
    const QSize size(usableLength(note.FrmWidth, twips, fallback.width(), smallest.width(), whole.width()),
                     usableLength(note.FrmHeight, twips, fallback.height(), smallestHeight, whole.height()));
    const bool none = !isPlace(note.FrmLeft) || !isPlace(note.FrmTop) || (note.FrmLeft == 0.0F && note.FrmTop == 0.0F);
    if (none) {
        const int along = CascadeOffset * (step % CascadeLength);
        const QRect opened(cascadeFrom + QPoint(along, along), size);
        return {broughtInto(opened, nearestScreen(cascadeFrom, screens)), false};
    }
    const QRect wanted(QPoint(twips.toPixels(note.FrmLeft), twips.toPixels(note.FrmTop)), size);
    if (strictlyInside(wanted, whole) && titleReachable(wanted, screens))
        return {wanted, true};
    return {broughtInto(wanted, nearestScreen(wanted.topLeft(), screens)), false};
}
