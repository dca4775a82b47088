// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataSurvey.h"
#include "model/datedCopies.h"
#include "model/journalReplay.h"
#include "model/logs.h"
#include "model/modFileIOData.h"
#include "model/modFileIOFolder.h"
#include "model/wholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modFileIO)
};

/// The first problem is the one to read; others mostly follow from it.
void tell(LoadReport &report, const QString &problem)
{
    if (report.problem.isEmpty())
        report.problem = problem;
}

/// A missing data file is made, as an empty one. No value: the file is there and cannot be read.
std::optional<QByteArray> readDataFile(DataFileState &state, LoadReport &report)
{
    auto file = wholeFile::read(state.paths.DataFile, DataImage::MaximumLength);
    if (file)
        return std::move(file).value();
    if (file.error().kind != ReadFailure::Kind::Missing) {
        state.readOnlyReason =
            Texts::tr("The stored notes cannot be read, and nothing can be saved until they can be: %1")
                .arg(file.error().reason);
        tell(report, state.readOnlyReason);
        return std::nullopt;
    }
    QFile::remove(state.paths.EmptiedMark);
    if (const auto made = wholeFile::replace(state.paths.DataFile, {}); !made)
        tell(report, Texts::tr("The file for the notes could not be made: %1").arg(made.error()));
    return QByteArray();
}

bool keepCopy(const QString &path, const QString &suffix, const QDateTime &now, LoadReport &report)
{
    const auto kept = wholeFile::keepAside(path, suffix, now);
    if (kept)
        report.keptAside.append(kept.value());
    else
        tell(report, Texts::tr("%1 could not be kept aside: %2").arg(path, kept.error()));
    return kept.ok();
}

/// Nobody is told when it fails: the start does not depend on it.
void keepDated(const ProgramPaths &paths, const QByteArray &bytes, const QDateTime &moment, const QDateTime &now)
{
    if (const auto kept = datedCopies::keep(paths, bytes, moment, now.date()); !kept)
        qCWarning(logs::files) << "No dated copy was kept:" << kept.error();
}

/// At the first start of a day, and at each that finds damage.
void keepCopyOfToday(const DataFileState &state, const QByteArray &file, const DataSurvey &survey, const QDateTime &now)
{
    const bool isDue = survey.recordCount > 0 && !datedCopies::hasCopyOf(state.paths, now.date());
    if (isDue || (survey.isDamaged && !file.isEmpty()))
        keepDated(state.paths, file, now, now);
}

bool wasEmptied(const DataFileState &state, const QByteArray &file)
{
    return file.isEmpty() && QFile::exists(state.paths.EmptiedMark);
}

/// The former backup is worth keeping when the new one is worth less. False: it must not be overwritten.
bool secureFormerBackup(const DataFileState &state, const QByteArray &file, const DataSurvey &survey,
                        const QDateTime &now, LoadReport &report)
{
    if (!survey.isDamaged && (survey.recordCount > 0 || wasEmptied(state, file)))
        return true;
    const auto former = wholeFile::read(state.paths.BackupFile, DataImage::MaximumLength);
    const bool isWorthless =
        former ? former.value().isEmpty() || former.value() == file : former.error().kind == ReadFailure::Kind::Missing;
    if (former && !isWorthless)
        keepDated(state.paths, former.value(), QFileInfo(state.paths.BackupFile).lastModified(), now);
    return isWorthless ||
           keepCopy(state.paths.BackupFile, survey.isDamaged ? u"before-damage"_s : u"before-empty"_s, now, report);
}

void writeBackup(const DataFileState &state, const QByteArray &file, const DataSurvey &survey, const QDateTime &now,
                 LoadReport &report)
{
    if (!secureFormerBackup(state, file, survey, now, report))
        return;
    const auto written = wholeFile::replace(state.paths.BackupFile, survey.recordCount > 0 ? file : QByteArray());
    if (!written)
        tell(report, Texts::tr("The backup could not be written: %1").arg(written.error()));
}

/// What is not a sound journal is moved aside: the next one is written over it.
Journal readJournal(const DataFileState &state, const QDateTime &now, LoadReport &report)
{
    const QString &path = state.paths.JournalFile;
    const auto bytes = wholeFile::read(path, journalFile::MaximumLength);
    if (!bytes && bytes.error().kind == ReadFailure::Kind::Missing)
        return {};
    if (bytes)
        if (auto journal = journalFile::decode(bytes.value()))
            return std::move(journal).value();
    const auto kept = wholeFile::moveAside(path, u"damaged"_s, now);
    if (kept)
        report.keptAside.append(kept.value());
    else
        tell(report, kept.error());
    return {};
}

/// The image gets what is to be stored, the disk what is.
void restoreNotes(DataSurvey &survey, DataFileState &state, const modFileIO::OnRecord &onRecord,
                  const modFileIO::OnProgress &onProgress, LoadReport &report)
{
    const auto wanted = [](const DataSurvey::Note &found) {
        return found.ahead.isEmpty() ? found.record.toByteArray() : found.ahead;
    };
    std::vector<const DataSurvey::Note *> unwanted;
    for (DataSurvey::Note &found : survey.notes) {
        if (onProgress)
            onProgress(found.number, survey.recordCount);
        const qint32 tag = onRecord(std::move(found.note));
        if (tag < 1) {
            unwanted.push_back(&found);
            continue;
        }
        state.image.keepLoaded(tag, wanted(found));
        if (!found.record.isEmpty())
            state.disk.keepLoaded(tag, found.record.toByteArray());
        ++report.restored;
    }
    for (const DataSurvey::Note *found : unwanted)
        state.image.keepForeign(wanted(*found));
    for (const QByteArrayView record : survey.beyondRoom)
        state.image.keepForeign(record.toByteArray());
}

} // namespace

LoadReport modFileIO::LoadDataFile(DataFileState &state, const clsNoteProps &noteTemplate, int room,
                                   const OnRecord &onRecord, const OnProgress &onProgress,
                                   const std::function<void()> &pause, const QDateTime &now)
{
    const QScopedValueRollback loading(state.LoadingData, true);
    LoadReport report;
    state.image.clear();
    state.disk.clear();
    removeLeftovers(state.paths);
    const Journal journal = readJournal(state, now, report);
    state.carried = journal.entries;
    const std::optional<QByteArray> file = readDataFile(state, report);
    if (!file)
        return report;
    state.stamp = modFileIO::stampOf(state.paths.DataFile, *file);
    DataSurvey survey = surveyDataFile(*file, noteTemplate, room);
    report.undecodable = survey.undecodable;
    qCInfo(logs::files) << state.paths.DataFile << "holds" << survey.recordCount << "records:" << survey.notes.size()
                        << "to be shown," << survey.beyondRoom.size() << "beyond the room," << report.undecodable
                        << "not read, damaged:" << survey.isDamaged;
    if (survey.isDamaged && !keepCopy(state.paths.DataFile, u"damaged"_s, now, report))
        state.asideOwedSince = now;
    keepCopyOfToday(state, *file, survey, now);
    writeBackup(state, *file, survey, now, report);
    const auto isSame =
        journal.file == state.stamp->digest ? journalReplay::DataFileIs::Same : journalReplay::DataFileIs::Another;
    const auto replayed = journalReplay::replay(journal.entries, isSame, noteTemplate, room, survey);
    report.broughtBack = replayed.broughtBack;
    report.overLimit = static_cast<int>(survey.beyondRoom.size());
    if (survey.recordCount > 0 && pause)
        pause();
    restoreNotes(survey, state, onRecord, onProgress, report);
    state.carried = replayed.hidden;
    state.unsaved = state.image.bytes() != *file;
    return report;
}
