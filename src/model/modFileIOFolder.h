// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/ProgramPaths.h"

/// The folder of the program's files.
namespace modFileIO
{

/// Makes the data folder, its owner's alone. One that is there is shut to others only when it holds nothing but the
/// program's own files. The error is the reason why there is no folder.
Outcome<Done, QString> prepareDataFolder(const ProgramPaths &paths);

/// Removes what a write has left behind that was cut off: files like "quillets.dat.xYzabC". Only names that are surely
/// made up by a machine; to be said before anything is written.
void removeLeftovers(const ProgramPaths &paths);

} // namespace modFileIO
