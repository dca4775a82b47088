// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/windows/noteExport.h"

#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/showModally.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"
#include "notes/commands/noteTitles.h"
#include "platform/Choosers.h"
#include "platform/Prompts.h"
#include "security/noteLocks.h"
#include "transfer/windows/frmExport.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("noteExport", text);
}

void say(Program &program, const QString &text, Message::Icon icon, QWidget *owner)
{
    program.prompts().tell({text, translated("Export"), icon}, owner);
}

/// The note may be gone when this returns.
bool mayLeave(Program &program, qint32 tag, QWidget *owner)
{
    NoteHost *host = NoteHost::of(program, tag);
    const LiveNote *note = host != nullptr ? host->live(tag) : nullptr;
    if (note == nullptr || (!note->locked && !noteLocks::isReadOnly(note->record)))
        return note != nullptr;
    const clsNoteProps record = note->record;
    const QString title = u'\'' + noteTitles::promptTitle(record, 0) + u'\'';
    return noteLocks::AuthenticateNote(program, title, record.Pwd, owner);
}

CarriedNote carried(const clsNoteProps &note)
{
    return {.title = noteTitles::title(note),
            .text = note.Data,
            .date = QLocale().toDateTime(note.DateCreated, QLocale::ShortFormat)};
}

std::vector<CarriedNote> notesOf(Program &program, const std::vector<qint32> &tags, const QPointer<QWidget> &owner)
{
    std::vector<CarriedNote> notes;
    for (const qint32 tag : tags) {
        if (program.Exiting)
            break;
        const bool mayGo = mayLeave(program, tag, owner);
        NoteHolder *holder = program.forms.holderOf(tag);
        if (!mayGo || holder == nullptr)
            continue;
        holder->updateRecords();
        notes.push_back(carried(*holder->recordOf(tag)));
    }
    return notes;
}

/// What is there already is told before anything comes beside it.
bool confirms(Program &program, const noteFiles::Plan &plan, QWidget *owner)
{
    const auto fresh = static_cast<int>(plan.fresh.size());
    const auto different = static_cast<int>(plan.different.size());
    if (plan.same + different == 0)
        return true;
    const QString text = translated("The folder holds %1 of these notes already, %2 of them with another text.\n"
                                    "Add %3 notes and replace %2?")
                             .arg(plan.same + different)
                             .arg(different)
                             .arg(fresh);
    return program.prompts().ask({text, translated("Export"), Message::Icon::Exclamation, Message::Buttons::OkCancel,
                                  Message::Enter::Cancel},
                                 owner) == Prompts::Answer::Ok;
}

void write(Program &program, const QString &folder, const noteFiles::Plan &plan, size_t leftOut,
           const QPointer<QWidget> &owner)
{
    if (plan.fresh.empty() && plan.different.empty() && leftOut == 0)
        return say(program, translated("All of these notes are in the folder already."), Message::Icon::None, owner);
    const bool isNew = !plan.fresh.empty() || !plan.different.empty();
    if (isNew && !confirms(program, plan, owner))
        return;
    for (const auto *files : {&plan.fresh, &plan.different})
        if (const auto written = noteFiles::write(folder, *files); !written)
            return say(program, translated("Not all notes could be exported.\n") + written.error(),
                       Message::Icon::Critical, owner);
    QString text = translated("Notes exported: %1.").arg(plan.fresh.size() + plan.different.size());
    if (leftOut > 0)
        text += u'\n' + translated("Left out without their password: %1.").arg(leftOut);
    say(program, text, Message::Icon::None, owner);
}

} // namespace

void noteExport::run(Program &program, QWidget *owner)
{
    const QPointer<QWidget> window = owner;
    const QPointer<frmExport> dialog = new frmExport(program, owner);
    if (!showModally(dialog))
        return;
    const auto tags = dialog->ExportResult();
    const noteFiles::Format format = dialog->format();
    dialog->unload();
    if (tags.empty())
        return;
    const auto notes = notesOf(program, tags, window);
    const auto folder = notes.empty() || program.Exiting
                            ? std::nullopt
                            : program.choosers().folder(translated("Folder for the notes"), window);
    if (folder && !program.Exiting)
        write(program, *folder, noteFiles::plan(*folder, noteFiles::of(notes, format)), tags.size() - notes.size(),
              window);
}
