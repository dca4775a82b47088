// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/DataImage.h"
#include "model/ProgramPaths.h"
#include "model/journalFile.h"

#include <QDateTime>

#include <optional>

/// What the program knows of its data file between two writes.
struct DataFileState
{
    ProgramPaths paths;
    DataImage image;
    DataImage disk; ///< What the data file holds of the notes in the image.
    bool LoadingData = false;
    bool SavingData = false;
    bool unsaved = false; ///< The image is ahead of the disk.
    /// Not empty: the data file could not be read, and is not written before it can be.
    QString readOnlyReason;
    /// The load of that moment could not keep its damaged data file aside; nothing is written before that is done.
    std::optional<QDateTime> asideOwedSince;
    /// Entries of the journal that no window shows: the file was unreadable, or there was no room. They stay in the
    /// journal until the data file holds them.
    std::vector<JournalEntry> carried;
    /// The data file as it was last read or written. Times alone prove nothing: some file systems round them later.
    struct Stamp
    {
        qint64 size = 0;
        QDateTime modified;
        QByteArray digest; ///< Of the contents.
    };
    std::optional<Stamp> stamp;
    /// Copies of data files that others had written, of which the user was not told yet.
    QStringList keptMeanwhile;
    int batchDepth = 0;
    int replacements = 0; ///< Times the data file was replaced.
};
