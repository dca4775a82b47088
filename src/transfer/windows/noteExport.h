// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Program;
class QWidget;

/// Notes go out as files.
namespace noteExport
{

/// Asks which notes, for their passwords and for the folder, and writes them. Nothing that is there is replaced, and
/// nothing is put beside an earlier export, without a question.
void run(Program &program, QWidget *owner);

} // namespace noteExport
