// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Program;
class QWidget;
struct Restored;

/// The quiet lines below the panel. There is one at a time.
namespace panelLines
{

/// After a start: what is damaged comes before what was brought back.
void tellRestored(Program &program, const QWidget &panel, Restored restored);
/// That what is typed is not on the disk, and why. With an empty reason that is over, and so is the line.
void tellJournal(Program &program, const QWidget &panel, const QString &reason);

} // namespace panelLines
