// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "transfer/CarriedNote.h"

#include <QStringList>

#include <vector>

/// Where notes can come from.
namespace noteSources
{

/// Another program whose notes were found.
struct Source
{
    QString program;
    std::vector<CarriedNote> notes;
};

/// The folders of a user.
struct Folders
{
    QString home;
    QString data;
    QString config;
};

/// The notes of other programs below them; only those that have some. It only reads.
std::vector<Source> found(const Folders &folders);

struct Read
{
    std::vector<CarriedNote> notes;
    QStringList refused; ///< Files that cannot be read, or are too large or of no kind that is known.
};

/// Files by their suffix: text, Markdown, notes of Gnote, calendars.
Read ofFiles(const QStringList &paths);
/// The file's suffix is one of those.
bool isKnown(const QString &path);

} // namespace noteSources
