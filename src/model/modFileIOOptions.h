// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/ProgramPaths.h"
#include "model/clsNoteProps.h"
#include "model/clsprogramoptions.h"

/// What the note window's design gives to the options.
struct DesignLook
{
    qint32 BackColor = 0;
    qint32 ForeColor = 0;
    QString FontName;
    float FontSize = 0;
};

/// The options: built-in, from their file, and as the start of every note.
namespace modFileIO
{

clsprogramoptions SetProgramDefaults(const ProgramPaths &paths, const DesignLook &look);
/// Reads the file over the options. False, and nothing changed, when it is missing, unreadable or begins with a 0; a
/// missing file is made.
bool LoadOptionsFile(const ProgramPaths &paths, clsprogramoptions &options);
/// A file that is there and cannot be read is moved aside, never written over.
Outcome<Done, QString> SaveOptionsFile(const ProgramPaths &paths, const clsprogramoptions &options);
/// `today` is the date as text.
clsNoteProps BuildNoteDefaults(const clsprogramoptions &options, const QString &today);

} // namespace modFileIO
