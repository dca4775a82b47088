// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QString>

/// Waiting until what was written would outlast a power cut. Systems differ in how that is asked for: one source file
/// each, of which the build takes one. File systems that know no such thing count as done.
namespace fileSync
{

/// The contents and the length of an open file. The error is the reason.
Outcome<Done, QString> syncFile(int handle);
/// The names in a folder, to be said after one was given to another file. The error is the reason.
Outcome<Done, QString> syncFolder(const QString &path);

} // namespace fileSync
