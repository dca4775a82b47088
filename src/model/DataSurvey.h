// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QByteArrayView>

#include <vector>

/// What a data file holds as far as it can be believed. No count or length of the file makes it larger than a few times
/// the file.
struct DataSurvey
{
    struct Note
    {
        int number = 0; ///< Place in the directory, counted from 1.
        clsNoteProps note;
        QByteArrayView record; ///< Empty for a note that is in the journal alone.
        QByteArray ahead = {}; ///< From the journal: what the record is to become; empty: as it is.
    };

    int recordCount = 0; ///< Entries of the directory that the file has room for.
    std::vector<Note> notes;
    std::vector<QByteArrayView> beyondRoom; ///< Sound records that were too many, in the directory's order.
    int undecodable = 0;
    /// Something of the file could not be read: writing all of this back would lose it. A length that the program does
    /// not go by, or another true than its own, is no damage.
    bool isDamaged = false;

    /// Of all that was read: first the notes, then what is beyond the room.
    std::vector<QByteArrayView> records() const;
};

/// Reads a whole data file; at most `room` notes are made. The views point into the file.
DataSurvey surveyDataFile(QByteArrayView file, const clsNoteProps &noteTemplate, int room);
