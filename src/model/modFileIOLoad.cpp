// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataSurvey.h"
#include "model/modFileIOData.h"
#include "model/wholeFile.h"

#include <QCoreApplication>
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
    auto file = readWholeFile(state.paths.DataFile, DataImage::MaximumLength);
    if (file)
        return std::move(file).value();
    if (file.error().kind != ReadFailure::Kind::Missing) {
        state.readOnlyReason = Texts::tr("The notes could not be read: %1").arg(file.error().reason);
        tell(report, state.readOnlyReason);
        return std::nullopt;
    }
    if (const auto made = replaceFile(state.paths.DataFile, {}); !made)
        tell(report, Texts::tr("The file for the notes could not be made: %1").arg(made.error()));
    return QByteArray();
}

bool keepCopy(const QString &path, const QString &suffix, const QDateTime &now, LoadReport &report)
{
    const auto kept = keepAside(path, suffix, now);
    if (kept)
        report.keptAside.append(kept.value());
    else
        tell(report, Texts::tr("%1 could not be kept aside: %2").arg(path, kept.error()));
    return kept.ok();
}

/// The former backup is worth keeping when the new one is worth less. False: it must not be overwritten.
bool secureFormerBackup(const DataFileState &state, const QByteArray &file, const DataSurvey &survey,
                        const QDateTime &now, LoadReport &report)
{
    if (!survey.isFlawed && survey.recordCount > 0)
        return true;
    const auto former = readWholeFile(state.paths.BackupFile, DataImage::MaximumLength);
    const bool isWorthless =
        former ? former.value().isEmpty() || former.value() == file : former.error().kind == ReadFailure::Kind::Missing;
    return isWorthless ||
           keepCopy(state.paths.BackupFile, survey.isFlawed ? u"before-damage"_s : u"before-empty"_s, now, report);
}

void writeBackup(const DataFileState &state, const QByteArray &file, const DataSurvey &survey, const QDateTime &now,
                 LoadReport &report)
{
    if (!secureFormerBackup(state, file, survey, now, report))
        return;
    const auto written = replaceFile(state.paths.BackupFile, survey.recordCount > 0 ? file : QByteArray());
    if (!written)
        tell(report, Texts::tr("The backup could not be written: %1").arg(written.error()));
}

void restoreNotes(DataSurvey &survey, DataImage &image, const modFileIO::OnRecord &onRecord,
                  const modFileIO::OnProgress &onProgress, LoadReport &report)
{
    std::vector<QByteArray> unwanted;
    for (DataSurvey::Note &found : survey.notes) {
        if (onProgress)
            onProgress(found.number, survey.recordCount);
        const qint32 tag = onRecord(std::move(found.note));
        if (tag < 1) {
            unwanted.push_back(found.record.toByteArray());
            continue;
        }
        image.keepLoaded(tag, found.record.toByteArray());
        ++report.restored;
    }
    for (const QByteArray &record : unwanted)
        image.keepForeign(record);
    for (const QByteArrayView record : survey.beyondRoom)
        image.keepForeign(record.toByteArray());
}

} // namespace

LoadReport modFileIO::LoadDataFile(DataFileState &state, const clsNoteProps &noteTemplate, int room,
                                   const OnRecord &onRecord, const OnProgress &onProgress,
                                   const std::function<void()> &pause, const QDateTime &now)
{
    const QScopedValueRollback loading(state.LoadingData, true);
    LoadReport report;
    state.image.clear();
    const std::optional<QByteArray> file = readDataFile(state, report);
    if (!file)
        return report;
    state.stamp = modFileIO::stampOf(state.paths.DataFile, *file);
    DataSurvey survey = surveyDataFile(*file, noteTemplate, room);
    report.overLimit = static_cast<int>(survey.beyondRoom.size());
    report.undecodable = survey.undecodable;
    if (survey.isFlawed && !keepCopy(state.paths.DataFile, u"damaged"_s, now, report))
        state.asideOwedSince = now;
    writeBackup(state, *file, survey, now, report);
    if (survey.recordCount > 0 && pause)
        pause();
    restoreNotes(survey, state.image, onRecord, onProgress, report);
    state.unsaved = state.image.bytes() != *file;
    return report;
}
