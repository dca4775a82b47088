// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

#include <array>

/// Where everything of a desktop note goes, in pixels, as a pure function of the window's size and the note's state.
/// Design lengths are in twips of the design display, 12 to the pixel.
struct NoteLayout
{
    // Design lengths.
    static constexpr int MinWidth = 800;
    static constexpr int TitleHeight = 240; ///< Height of a rolled-up note.
    static constexpr int Gap = 10;          ///< TitleHeight + Gap is the smallest height of a note that is not.
    static constexpr int BandTool = 500;    ///< Title bar and toolbar.
    static constexpr int BandNoTool = 270;  ///< Title bar alone.
    static constexpr int TitleReserve = 770;
    static constexpr int ExitOffset = 210;
    static constexpr int MinimizeOffset = 430;
    static constexpr int EditReserve = 1440;
    static constexpr int HandleInset = 100;
    static constexpr int CornerOffset = 200;
    static constexpr int CornerLow = 260;
    static constexpr int CornerRight = 120;
    static constexpr int BodyInset = 50;
    static constexpr int MenuDrop = 190;
    static constexpr int ToolbarGap = 20;
    static constexpr int DefaultWidth = 2660;
    static constexpr int DefaultHeight = 2010;
    static constexpr int IconMargin = 75; ///< Twips of the real display.

    static constexpr int ToolbarImages = 6;
    static constexpr int CornerHandles = 6;
    static constexpr int EdgeHandles = 2;

    struct State
    {
        bool toolBarOn = false;
        bool locked = false;
        int iconMargin = 5; ///< IconMargin in pixels.
    };

    static NoteLayout of(QSize window, const State &state);

    static QSize smallestSize();
    static int rolledHeight();
    /// What switching the toolbar on or off adds to or takes from the height.
    static int toolbarShare();

    QRect titleBar;
    QRect menu;
    QRect exit;
    QRect minimize;
    QRect title; ///< Empty when the window is too narrow for one.
    QRect titleLine;
    QRect buttons; ///< Empty when the toolbar is not shown.
    std::array<QRect, ToolbarImages> images;
    std::array<bool, ToolbarImages> imageFits{};
    QRect edit; ///< Inside the toolbar; empty when there is no room.
    QRect toolLine;
    QRect body;     ///< Of the display and the editing layer; empty when there is no room.
    QRect password; ///< Of the locked overlay.
    std::array<QRect, CornerHandles> corners;
    std::array<QRect, EdgeHandles> sides;   ///< 0 right, 1 left.
    std::array<QRect, EdgeHandles> topEnds; ///< 0 bottom, 1 top.
};
