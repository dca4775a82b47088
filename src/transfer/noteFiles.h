// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "transfer/CarriedNote.h"

#include <vector>

/// Writing notes as files that any editor opens, one a note.
namespace noteFiles
{

enum class Format
{
    Text,
    Markdown
};

struct File
{
    QString name;
    QByteArray bytes;
    QDateTime date;
};

/// The files of the notes, under names that every system takes and no two of which differ in capitals alone.
std::vector<File> of(const std::vector<CarriedNote> &notes, Format format);

/// What of the files is in the folder already.
struct Plan
{
    std::vector<File> fresh;
    std::vector<File> different; ///< There under the same name, with other contents.
    int same = 0;
};
Plan plan(const QString &folder, std::vector<File> files);

/// Writes the files with the dates of their notes; stops at the first that cannot be written, with the reason.
Outcome<Done, QString> write(const QString &folder, const std::vector<File> &files);

} // namespace noteFiles
