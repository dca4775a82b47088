// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/copyReading.h"

#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "model/DataSurvey.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

constexpr int MostRead = 1000; ///< Ten times as many as the program holds.

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CopyReading)
};

std::vector<PresentNote> presentNotes(Program &program)
{
    std::vector<PresentNote> present;
    for (NoteHolder *holder : program.forms.holders()) {
        holder->updateRecords();
        for (const qint32 tag : holder->tags()) {
            NoteHost *host = NoteHost::of(program, tag);
            const LiveNote *live = host != nullptr ? host->live(tag) : nullptr;
            present.push_back({holder->recordOf(tag), live != nullptr && live->locked});
        }
    }
    return present;
}

} // namespace

int CopyReading::count(Standing standing) const
{
    return static_cast<int>(std::count_if(notes.begin(), notes.end(),
                                          [standing](const KeptNote &note) { return note.standing == standing; }));
}

QString CopyReading::summary() const
{
    if (!problem.isEmpty())
        return Texts::tr("cannot be read");
    QStringList parts;
    if (const int gone = count(Standing::Gone); gone > 0)
        parts.append(Texts::tr("%1 gone").arg(gone));
    if (const int changed = count(Standing::Changed); changed > 0)
        parts.append(Texts::tr("%1 changed").arg(changed));
    if (isDamaged)
        parts.append(Texts::tr("damaged"));
    return parts.isEmpty() ? Texts::tr("as today") : parts.join(Texts::tr(", "));
}

QString CopyReading::flaw() const
{
    if (!problem.isEmpty())
        return Texts::tr("This copy cannot be read: %1").arg(problem);
    QStringList lines;
    if (unread > 0)
        lines.append(Texts::tr("This copy is damaged. Notes that could not be read: %1.").arg(unread));
    else if (isDamaged)
        lines.append(Texts::tr("This copy is damaged. Shown is what could be read."));
    if (beyond > 0)
        lines.append(Texts::tr("Notes beyond the first %1 are not shown: %2.").arg(MostRead).arg(beyond));
    return lines.join(u' ');
}

CopyReading readCopy(Program &program, const datedCopies::Copy &copy)
{
    CopyReading reading;
    const auto file = datedCopies::read(program.paths(), copy);
    if (!file) {
        reading.problem = file.error().reason;
        return reading;
    }
    DataSurvey survey = surveyDataFile(file.value(), program.NoteTemplate, MostRead);
    std::vector<clsNoteProps> kept;
    for (DataSurvey::Note &found : survey.notes)
        kept.push_back(std::move(found.note));
    reading.notes = keptNotes::compared(std::move(kept), presentNotes(program));
    reading.unread = survey.undecodable;
    reading.beyond = static_cast<int>(survey.beyondRoom.size());
    reading.isDamaged = survey.isDamaged;
    return reading;
}
