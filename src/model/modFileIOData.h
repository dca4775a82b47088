// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/DataFileState.h"
#include "model/clsNoteProps.h"

#include <QStringList>

#include <functional>

/// What a load came to.
struct LoadReport
{
    int restored = 0;
    int overLimit = 0;     ///< Sound records beyond the room, kept in the file untouched.
    int broughtBack = 0;   ///< Notes that the journal had and the data file had not.
    int undecodable = 0;   ///< Records passed over; the damaged file was kept aside.
    QStringList keptAside; ///< Paths of the copies made.
    QString problem;       ///< Not empty: for the user to read.
};

/// What is to become of a note's record.
enum class NoteFate
{
    Keep,
    Remove
};

/// What became of one WriteNoteRecord.
struct WriteResult
{
    enum class Kind
    {
        Ignored,  ///< The note has no tag.
        Deferred, ///< The data file is being loaded; nothing changed.
        Batched,  ///< In the image; the batch will write it.
        Written,  ///< On the disk.
        Failed    ///< Not on the disk, see the reason.
    };
    Kind kind = Kind::Ignored;
    QString reason;
};

/// The file of all notes: reading it at start-up and when to write it.
namespace modFileIO
{

/// Returns the tag of the note that was made of the record, 0 when none was.
using OnRecord = std::function<qint32(clsNoteProps &&note)>;
using OnProgress = std::function<void(int k, int n)>;

/// Hands at most `room` notes to `onRecord` in the order of the directory. Afterwards the image holds every record that
/// could be read, the restored ones under their new tags, so that no write can put less on the disk than was there.
/// Before each note `onProgress` gets its number, counted from 1, and the number of records; `pause` runs once before
/// the first, only when there are records; both may be empty. Whatever is flawed is kept aside before anything is
/// written over.
LoadReport LoadDataFile(DataFileState &state, const clsNoteProps &noteTemplate, int room, const OnRecord &onRecord,
                        const OnProgress &onProgress, const std::function<void()> &pause, const QDateTime &now);

/// Puts the note's record into the file or takes it out.
WriteResult WriteNoteRecord(DataFileState &state, const clsNoteProps &note, NoteFate fate);

/// Of a data file that was just read or written with these bytes.
DataFileState::Stamp stampOf(const QString &path, QByteArrayView bytes);

/// Writes the image if the disk is behind it, inside a batch too. During a load nothing happens.
Outcome<Done, QString> flush(DataFileState &state);

// Between these two, which nest, notes change only the image; the outermost end writes the file once.
void beginBatch(DataFileState &state);
Outcome<Done, QString> endBatch(DataFileState &state);

} // namespace modFileIO
