// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/restoring.h"

#include "alarms/modAlarm.h"
#include "controls/QuietLine.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "forms/showModally.h"
#include "model/datedCopies.h"
#include "model/logs.h"
#include "notes/modCreateNote.h"
#include "platform/Clock.h"
#include "restore/frmRestore.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace restoring
{
namespace
{

constexpr float Aside = 360; ///< Twips.

/// The first start of the day may be long ago.
void keepBefore(Program &program)
{
    modForms::SaveAllNotes(program);
    const QDateTime now = program.clock().now();
    const QByteArray bytes = program.file.disk.bytes();
    if (bytes.isEmpty())
        return;
    if (const auto kept = datedCopies::keep(program.paths(), bytes, now, now.date()); !kept)
        qCWarning(logs::files) << "No dated copy was kept:" << kept.error();
}

bool isTaken(const Program &program, const clsNoteProps &note)
{
    const auto tags = program.forms.tags();
    return std::any_of(tags.begin(), tags.end(), [&](qint32 tag) {
        const clsNoteProps *other = program.forms.recordOf(tag);
        return !other->NoteStackOn && std::abs(other->FrmLeft - note.FrmLeft) < Aside / 2 &&
               std::abs(other->FrmTop - note.FrmTop) < Aside / 2;
    });
}

/// Not exactly over what the note has become meanwhile.
void stepAside(const Program &program, clsNoteProps &note)
{
    for (int i = 0; i < modCreateNote::MostNotes && isTaken(program, note); ++i) {
        note.FrmLeft += Aside;
        note.FrmTop += Aside;
    }
}

void bringBackOne(Program &program, clsNoteProps note)
{
    note.AlarmOn = note.AlarmOn && modAlarm::AlarmDelay(note, program.clock().now()).future;
    stepAside(program, note);
    modCreateNote::CreateNote(program, std::move(note), Home::Desktop, NoteCreateMode::Load);
}

} // namespace

void openRestore(Program &program, QWidget *owner)
{
    if (program.forms.find(frmRestore::Name) != nullptr)
        return;
    const QPointer<frmRestore> dialog = new frmRestore(program, owner);
    dialog->Initialize();
    if (!showModally(dialog))
        return;
    const std::vector<clsNoteProps> chosen = dialog->RestoreResult();
    dialog->unload();
    bringBack(program, chosen);
}

void bringBack(Program &program, const std::vector<clsNoteProps> &notes)
{
    if (notes.empty())
        return;
    keepBefore(program);
    bool isFull = false;
    for (const clsNoteProps &note : notes) {
        // A box about a missing picture may have been open.
        if (program.Exiting)
            return;
        isFull = program.NoteCounter >= modCreateNote::MostNotes;
        if (isFull)
            break;
        bringBackOne(program, note);
    }
    modForms::SaveAllNotes(program);
    if (isFull)
        modCreateNote::tellLimit(program);
}

void offerRestore(Program &program, const QRect &place)
{
    if (program.Exiting || datedCopies::list(program.paths()).empty())
        return;
    auto *line = new QuietLine(program, {QCoreApplication::translate("restoring", "Notes of earlier days are kept."),
                                         QCoreApplication::translate("restoring", "Restore Notes..."),
                                         {},
                                         {},
                                         [&program] { openRestore(program, nullptr); }});
    line->showBy(place);
}

} // namespace restoring
