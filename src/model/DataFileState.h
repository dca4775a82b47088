// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/DataImage.h"
#include "model/ProgramPaths.h"

#include <QDateTime>

#include <optional>

/// What the program knows of its data file between two writes.
struct DataFileState
{
    ProgramPaths paths;
    DataImage image;
    bool LoadingData = false;
    bool SavingData = false;
    bool unsaved = false;   ///< The image is ahead of the disk.
    QString readOnlyReason; ///< Not empty: the data file could not be read, so it is never written.
    /// The load of that moment could not keep its damaged data file aside; nothing is written before that is done.
    std::optional<QDateTime> asideOwedSince;
    int batchDepth = 0;
    int replacements = 0; ///< Times the data file was replaced.
};
