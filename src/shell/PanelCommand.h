// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

/// What can be commanded of the program, on the panel, in its menu or in that of its tray icon. The first eight are the
/// rows of the panel, in their order.
enum class PanelCommand
{
    New,
    NoteStack,
    AllToNoteStack,
    AllToDesktop,
    Save,
    Options,
    Help,
    Exit,
    About,
    Show,
    ShowOrHideAll,
    Find,
    Restore,
    Export,
    Import,
    None
};
