// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIOData.h"

#include "model/wholeFile.h"
#include "model/modStreams.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace
{

Outcome<bool, QString> changeImage(DataImage &image, const clsNoteProps &note, bool keep)
{
    if (!keep)
        return image.remove(note.Tag);
    return image.put(note.Tag, modStreams::EncodeNoteRecord(note));
}

Outcome<Done, QString> settleAside(DataFileState &state)
{
    if (!state.asideOwedSince)
        return Done{};
    const auto kept = keepAside(state.paths.DataFile, u"damaged"_s, *state.asideOwedSince);
    if (!kept)
        return Failure{kept.error()};
    state.asideOwedSince.reset();
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
    const auto bytes = readWholeFile(state.paths.DataFile, DataImage::MaximumLength);
    if (bytes && digestOf(bytes.value()) == state.stamp->digest)
        return Done{};
    const auto kept = keepAside(state.paths.DataFile, u"changed"_s, QDateTime::currentDateTime());
    if (!kept)
        return Failure{kept.error()};
    state.keptMeanwhile.append(kept.value());
    return Done{};
}

/// The folder may have been removed.
void ensureFolder(const QString &path)
{
    constexpr auto OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!QFileInfo::exists(path) && QDir().mkdir(path))
        QFile::setPermissions(path, OwnerOnly);
}

Outcome<Done, QString> replaceDataFile(DataFileState &state)
{
    const QScopedValueRollback saving(state.SavingData, true);
    ensureFolder(state.paths.DataFolder);
    auto written = keepForeignFile(state);
    const QByteArray bytes = state.image.bytes();
    if (written)
        written = replaceFile(state.paths.DataFile, bytes);
    if (written) {
        state.stamp = modFileIO::stampOf(state.paths.DataFile, bytes);
        state.unsaved = false;
        ++state.replacements;
    }
    return written;
}

} // namespace

DataFileState::Stamp modFileIO::stampOf(const QString &path, QByteArrayView bytes)
{
    return {bytes.size(), QFileInfo(path).lastModified(), digestOf(bytes)};
}

WriteResult modFileIO::WriteNoteRecord(DataFileState &state, const clsNoteProps &note, bool keep)
{
    if (note.Tag < 1)
        return {};
    if (state.LoadingData)
        return {WriteResult::Kind::Deferred, {}};
    if (!state.readOnlyReason.isEmpty())
        return {WriteResult::Kind::Failed, state.readOnlyReason};
    const auto changed = changeImage(state.image, note, keep);
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
    if (!state.unsaved || state.LoadingData || state.batchDepth > 0)
        return Done{};
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
    return flush(state);
}

SaveBatch::~SaveBatch()
{
    static_cast<void>(end());
}

Outcome<Done, QString> SaveBatch::end()
{
    DataFileState *const state = std::exchange(m_state, nullptr);
    if (!state)
        return Done{};
    return modFileIO::endBatch(*state);
}
