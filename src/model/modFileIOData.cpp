// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIOData.h"

#include "model/DataSurvey.h"
#include "model/datedCopies.h"
#include "model/journalReplay.h"
#include "model/logs.h"
#include "model/modFileIOFolder.h"
#include "model/modStreams.h"
#include "model/wholeFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace
{

Outcome<bool, QString> changeImage(DataImage &image, const clsNoteProps &note, NoteFate fate)
{
    if (fate == NoteFate::Remove)
        return image.remove(note.Tag);
    return image.put(note.Tag, modStreams::EncodeNoteRecord(note));
}

Outcome<Done, QString> settleAside(DataFileState &state)
{
    if (!state.asideOwedSince)
        return Done{};
    const auto kept = wholeFile::keepAside(state.paths.DataFile, u"damaged"_s, *state.asideOwedSince);
    if (!kept)
        return Failure{kept.error()};
    state.asideOwedSince.reset();
    return Done{};
}

/// Nobody is told when it fails: what is to be kept is kept aside besides.
void keepDated(const DataFileState &state, const QByteArray &bytes)
{
    const QDateTime now = QDateTime::currentDateTime();
    if (const auto kept = datedCopies::keep(state.paths, bytes, now, now.date()); !kept)
        qCWarning(logs::files) << "No dated copy was kept:" << kept.error();
}

/// A data file that could not be read at the start may be there again. Its notes are not shown in this run, but from
/// then on stored with the others.
Outcome<Done, QString> takeUpUnread(DataFileState &state)
{
    if (state.readOnlyReason.isEmpty())
        return Done{};
    const auto file = wholeFile::read(state.paths.DataFile, DataImage::MaximumLength);
    if (!file && file.error().kind != ReadFailure::Kind::Missing)
        return Failure{state.readOnlyReason};
    const QByteArray bytes = file ? file.value() : QByteArray();
    DataSurvey survey = surveyDataFile(bytes, {}, 0);
    if (survey.isDamaged)
        state.asideOwedSince = QDateTime::currentDateTime();
    if (!bytes.isEmpty())
        keepDated(state, bytes);
    journalReplay::replay(state.carried, journalReplay::DataFileIs::Another, {}, 0, survey);
    DataImage both = state.image;
    for (const QByteArrayView record : survey.beyondRoom)
        if (!both.keepForeign(record.toByteArray()))
            return Failure{state.readOnlyReason};
    state.image = std::move(both);
    state.stamp = modFileIO::stampOf(state.paths.DataFile, bytes);
    state.readOnlyReason.clear();
    return Done{};
}

QByteArray digestOf(QByteArrayView bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

/// What another program has written meanwhile, a restored backup or a synchronised file, is not lost.
Outcome<Done, QString> keepForeignFile(DataFileState &state)
{
    const QFileInfo file(state.paths.DataFile);
    if (!state.stamp || !file.isFile() ||
        (file.size() == state.stamp->size && file.lastModified() == state.stamp->modified))
        return Done{};
    const auto bytes = wholeFile::read(state.paths.DataFile, DataImage::MaximumLength);
    if (bytes && digestOf(bytes.value()) == state.stamp->digest)
        return Done{};
    const auto kept = wholeFile::keepAside(state.paths.DataFile, u"changed"_s, QDateTime::currentDateTime());
    if (!kept)
        return Failure{kept.error()};
    state.keptMeanwhile.append(kept.value());
    if (bytes)
        keepDated(state, bytes.value());
    return Done{};
}

/// An empty file tells by itself neither that the user has deleted all notes nor that they were lost. The mark is never
/// there beside notes: it goes before they are written, and comes after they were deleted.
void unmarkEmptied(const ProgramPaths &paths)
{
    if (QFile::exists(paths.EmptiedMark) && !QFile::remove(paths.EmptiedMark))
        qCWarning(logs::files) << paths.EmptiedMark << "not removed";
}

Outcome<Done, QString> prepareReplacing(DataFileState &state)
{
    // The folder may have been removed.
    if (!QFileInfo::exists(state.paths.DataFolder))
        if (auto made = modFileIO::prepareDataFolder(state.paths); !made)
            return made;
    if (auto kept = keepForeignFile(state); !kept)
        return kept;
    unmarkEmptied(state.paths);
    return Done{};
}

/// Even a write that failed may have put these bytes there, only not surely on the disk. They are nobody else's then.
bool holds(const QString &path, const QByteArray &bytes)
{
    const auto file = wholeFile::read(path, DataImage::MaximumLength);
    return file && file.value() == bytes;
}

Outcome<Done, QString> replaceDataFile(DataFileState &state)
{
    const QScopedValueRollback saving(state.SavingData, true);
    if (auto prepared = prepareReplacing(state); !prepared)
        return prepared;
    const QString &path = state.paths.DataFile;
    const QByteArray bytes = state.image.bytes();
    auto written = wholeFile::replace(path, bytes);
    if (written || holds(path, bytes))
        state.stamp = modFileIO::stampOf(path, bytes);
    if (!written)
        return written;
    if (bytes.isEmpty()) // Without its mark the next start asks once too often.
        static_cast<void>(wholeFile::replace(state.paths.EmptiedMark, {}));
    state.disk = state.image;
    state.carried.clear();
    state.unsaved = false;
    ++state.replacements;
    return written;
}

} // namespace

DataFileState::Stamp modFileIO::stampOf(const QString &path, QByteArrayView bytes)
{
    return {bytes.size(), QFileInfo(path).lastModified(), digestOf(bytes)};
}

WriteResult modFileIO::WriteNoteRecord(DataFileState &state, const clsNoteProps &note, NoteFate fate)
{
    if (note.Tag < 1)
        return {};
    if (state.LoadingData)
        return {WriteResult::Kind::Deferred, {}};
    const auto changed = changeImage(state.image, note, fate);
    if (!changed)
        return {WriteResult::Kind::Failed, changed.error()};
    state.unsaved = state.unsaved || changed.value();
    if (state.batchDepth > 0)
        return {WriteResult::Kind::Batched, {}};
    const auto written = flush(state);
    return written ? WriteResult{WriteResult::Kind::Written, {}}
                   : WriteResult{WriteResult::Kind::Failed, written.error()};
}

Outcome<Done, QString> modFileIO::flush(DataFileState &state)
{
    if (!state.unsaved || state.LoadingData)
        return Done{};
    if (auto takenUp = takeUpUnread(state); !takenUp)
        return takenUp;
    if (auto settled = settleAside(state); !settled)
        return settled;
    return replaceDataFile(state);
}

void modFileIO::beginBatch(DataFileState &state)
{
    ++state.batchDepth;
}

Outcome<Done, QString> modFileIO::endBatch(DataFileState &state)
{
    --state.batchDepth;
    return state.batchDepth > 0 ? Done{} : flush(state);
}
