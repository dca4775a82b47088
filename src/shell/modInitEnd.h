// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class EndSignals;
class Program;

/// How the program ends.
namespace modInit
{

/// Saves all notes, closes every window and ends the program. Asks first when notes could not be saved.
void ExitProgram(Program &program);
/// What ends the program from outside saves the notes first. Nobody may be there to answer a box.
void saveWhenEnded(Program &program, EndSignals &endSignals);

} // namespace modInit
