// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/windows/noteImport.h"

#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "forms/showModally.h"
#include "notes/modCreateNote.h"
#include "platform/Clock.h"
#include "platform/Prompts.h"
#include "transfer/windows/frmImport.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

namespace
{

/// As many as there is room for; none when the user would rather have all or none.
size_t room(Program &program, size_t wanted, QWidget *owner)
{
    const auto free = static_cast<size_t>(qMax(0, modCreateNote::MostNotes - program.NoteCounter));
    if (wanted <= free)
        return wanted;
    if (free == 0) {
        modCreateNote::tellLimit(program, owner);
        return 0;
    }
    const QString text = QCoreApplication::translate("noteImport", "There is room for %1 of these %2 notes.\n"
                                                                   "Import the first %1?");
    const auto answer =
        program.prompts().ask({text.arg(free).arg(wanted), QCoreApplication::translate("noteImport", "Import"),
                               Message::Icon::Exclamation, Message::Buttons::OkCancel},
                              owner);
    return answer == Prompts::Answer::Ok ? free : 0;
}

/// Like a new note, with what came along.
clsNoteProps recordOf(Program &program, const CarriedNote &note)
{
    clsNoteProps record = program.NoteTemplate;
    record.TitleBarTitle = note.title;
    record.Data = note.text;
    record.BackColor = note.backColour.value_or(record.BackColor);
    record.ForeColor = note.textColour.value_or(record.ForeColor);
    const QDateTime date = note.date.isValid() ? note.date.toLocalTime() : program.clock().now();
    record.DateCreated = QLocale().toString(date, QLocale::ShortFormat);
    return record;
}

void create(Program &program, const std::vector<CarriedNote> &notes, size_t count, Home home)
{
    for (size_t i = 0; i < count && !program.Exiting; ++i)
        modCreateNote::CreateNote(program, recordOf(program, notes[i]), home, NoteCreateMode::Load);
    modForms::SaveAllNotes(program);
    StackHolder *stack = program.forms.stack();
    if (home == Home::NoteStack && stack != nullptr && !program.Exiting)
        stack->showStack();
}

} // namespace

void noteImport::run(Program &program, QWidget *owner, const QStringList &files)
{
    const QPointer<QWidget> window = owner;
    const QPointer<frmImport> dialog = new frmImport(program, owner);
    const auto folder = QStandardPaths::writableLocation;
    dialog->Initialize(files.isEmpty()
                           ? noteSources::found({QDir::homePath(), folder(QStandardPaths::GenericDataLocation),
                                                 folder(QStandardPaths::GenericConfigLocation)})
                           : std::vector<noteSources::Source>(),
                       files);
    if (dialog == nullptr || !showModally(dialog))
        return;
    const auto notes = dialog->ImportResult();
    const Home home = dialog->intoNoteStack() ? Home::NoteStack : Home::Desktop;
    dialog->unload();
    if (notes.empty())
        return;
    const size_t count = room(program, notes.size(), window);
    if (count > 0 && !program.Exiting)
        create(program, notes, count, home);
}
