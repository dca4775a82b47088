// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The colours a note is drawn in, all made from the two of its record. Thin lines and washes are mixtures of paper
/// and ink, so that they read on any colour.
struct NoteInk
{
    QColor paper;
    QColor ink;
    QColor buttonInk;  ///< Of the pictures, which are seen on the bare paper whatever lies behind the text.
    QColor faintInk;   ///< The date and other asides.
    QColor titleStrip; ///< A touch darker than the paper, lighter on a dark note.
    QColor titleLine;
    QColor toolLine;
    QColor outline; ///< Parts two notes of one colour that overlap.

    /// From `BackColor` and `ForeColor`. A system text colour that could not be read on the paper gives way to one
    /// that can; a colour that the user has chosen is used as it is.
    static NoteInk from(qint32 backColor, qint32 foreColor);

    bool operator==(const NoteInk &) const = default;
};
