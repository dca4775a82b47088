// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteLayout.h"

#include "drawing/Twips.h"

namespace
{

constexpr int Outline = 1;
constexpr int Edge = 4; ///< Thickness of the resize handles.
constexpr int Picture = 16;
constexpr int FirstImage = 5;
constexpr int ImagePitch = 19;
constexpr int TitleLeft = 26;
constexpr int MenuLeft = 5;
constexpr int EditRight = 4;

int px(int design)
{
    return Twips::design(design);
}

int titleHeight()
{
    return px(NoteLayout::TitleHeight);
}

void layOutTitle(NoteLayout &to, int width)
{
    const int top = (titleHeight() - Picture) / 2;
    to.titleBar = {Outline, Outline, width - 2 * Outline, titleHeight() - 2 * Outline};
    const QPoint inside = -to.titleBar.topLeft();
    to.menu = QRect(MenuLeft, top, Picture, Picture).translated(inside);
    to.exit = QRect(width - px(NoteLayout::ExitOffset) - 2, top, Picture, Picture).translated(inside);
    to.minimize = QRect(width - px(NoteLayout::MinimizeOffset) - 2, top, Picture, Picture).translated(inside);
    if (width > px(NoteLayout::TitleReserve))
        to.title = QRect(TitleLeft, Outline, width - px(NoteLayout::TitleReserve), titleHeight() - 2 * Outline)
                       .translated(inside);
    to.titleLine = {Outline, titleHeight(), width - 2 * Outline, 1};
}

void layOutToolbar(NoteLayout &to, QSize window, const NoteLayout::State &state)
{
    const int top = titleHeight() + 1;
    const int height = px(NoteLayout::BandTool) - top - 1;
    const bool shown = state.toolBarOn && !state.locked && window.height() - px(NoteLayout::CornerLow) > height;
    for (int i = 0; i < NoteLayout::ToolbarImages; ++i) {
        const QRect image(FirstImage - Outline + i * ImagePitch, (height - Picture) / 2, Picture, Picture);
        const auto at = static_cast<size_t>(i);
        to.images[at] = image;
        to.imageFits[at] = image.right() + 1 + state.iconMargin < window.width();
    }
    if (!shown)
        return;
    to.buttons = {Outline, top, window.width() - 2 * Outline, height};
    const int editWidth = window.width() - px(NoteLayout::EditReserve);
    if (editWidth > state.iconMargin)
        to.edit = {to.buttons.width() - EditRight - editWidth + Outline, 0, editWidth, height};
    to.toolLine = {Outline, px(NoteLayout::BandTool) - 1, window.width() - 2 * Outline, 1};
}

void layOutBody(NoteLayout &to, QSize window, const NoteLayout::State &state)
{
    const int inset = px(NoteLayout::BodyInset) / 2;
    const int band = px(state.toolBarOn ? NoteLayout::BandTool : NoteLayout::BandNoTool);
    if (window.height() > band + px(NoteLayout::Gap))
        to.body = {inset, band, window.width() - 2 * inset, window.height() - band - Outline};
    const int below = titleHeight() + 1;
    if (window.height() > below + Outline)
        to.password = {Outline, below, window.width() - 2 * Outline, window.height() - below - Outline};
}

/// Corners lie on the edges as an L, whose inner part is cut away by the handle's mask.
void layOutHandles(NoteLayout &to, QSize window)
{
    const int w = window.width();
    const int h = window.height();
    const int inset = px(NoteLayout::HandleInset);
    const int reach = px(NoteLayout::CornerOffset);
    const int low = px(NoteLayout::CornerLow);
    const int right = px(NoteLayout::CornerRight);
    to.sides = {QRect(w - Edge, inset / 2, Edge, h - inset), QRect(0, inset / 2, Edge, h - inset)};
    to.topEnds = {QRect(inset / 2, h - Edge, w - inset, Edge), QRect(inset / 2, 0, w - inset, Edge)};
    to.corners = {QRect(w - reach, h - Edge, reach, Edge),
                  QRect(w - reach, h - low, reach, low),
                  QRect(0, h - Edge, reach, Edge),
                  QRect(0, h - low, reach, low),
                  QRect(0, 0, right, right),
                  QRect(w - right, 0, right, right)};
}

} // namespace

QSize NoteLayout::smallestSize()
{
    return {px(MinWidth), px(TitleHeight + Gap)};
}

int NoteLayout::rolledHeight()
{
    return titleHeight();
}

int NoteLayout::toolbarShare()
{
    return px(BandTool) - px(BandNoTool) + px(ToolbarGap);
}

NoteLayout NoteLayout::of(QSize window, const State &state)
{
    NoteLayout layout;
    layOutTitle(layout, window.width());
    layOutToolbar(layout, window, state);
    layOutBody(layout, window, state);
    layOutHandles(layout, window);
    return layout;
}
