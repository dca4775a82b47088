// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Program.h"

class frmSplash;

/// What the restoring of the notes came to.
struct Restored
{
    bool isDamaged = false;
    int broughtBack = 0; ///< Notes that a run which ended too early had not saved.
};

/// Start-up and shut-down.
namespace modInit
{

/// The process from its entry to its end; the result is the exit code.
int Main(int argc, char *argv[]);

// The steps of start-up that work on the program's state.

/// False, after a box, when the pictures are not beside the program.
bool checkComponents(Program &program);
/// The data folder, made where it is missing, its owner's alone.
void prepareDataFolder(Program &program);
/// The built-in defaults, the options file over them, and the check of the files they name.
void LoadProgramOptions(Program &program);
/// Restores the notes of the data file; the splash window, if there is one, tells how far it is.
Restored restoreNotes(Program &program, frmSplash *splash);

} // namespace modInit
