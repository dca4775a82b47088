// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QRect>

#include <vector>

class Program;
class QWidget;

/// Bringing notes of dated copies back.
namespace restoring
{

/// The window, and then what was chosen in it. Nothing while it is open already.
void openRestore(Program &program, QWidget *owner);
/// Makes new notes of these on the desktop, as many as there is room for, and saves them; the limit is told. The data
/// file as it was before is kept as a dated copy. An alarm that is past does not go off once more.
void bringBack(Program &program, const std::vector<clsNoteProps> &notes);
/// A line near that place that leads to the window; for after a start that found damage. Nothing where there are no
/// copies.
void offerRestore(Program &program, const QRect &place);

} // namespace restoring
