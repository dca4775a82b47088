// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/ProgramPaths.h"

#include <QStringList>

enum class RecentList
{
    Email,
    Send
};

/// The misc file's two lines.
struct MiscLines
{
    QString email;
    QString send;
};

/// The lists of addresses used of late.
namespace modFileIO
{

/// In each list.
inline constexpr qsizetype MostRecent = 10;

/// Both lines are empty when the file is missing or unreadable; the next save moves an unreadable one aside.
MiscLines ReadMiscFile(const ProgramPaths &paths);
/// Keeps the first `count` items, MostRecent at most, and the other list as it is.
Outcome<Done, QString> SaveRecentList(const ProgramPaths &paths, RecentList which, const QStringList &items,
                                      qsizetype count);
/// The first MostRecent of those in the file.
QStringList LoadRecentList(const ProgramPaths &paths, RecentList which);

} // namespace modFileIO
