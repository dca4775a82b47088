// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/modCreateNote.h"

#include "notes/NotePlacement.h"
#include "platform/SystemClock.h"
#include "platform/Prompts.h"
#include "platform/windowStacking.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>

namespace modCreateNote
{
namespace
{

constexpr QPoint CascadeMargin(48, 48);

void stamp(Program &program, clsNoteProps &record, bool toNoteStack, NoteCreateMode mode)
{
    record.NoteStackOn = toNoteStack;
    if (mode != NoteCreateMode::Move)
        record.Tag = ++program.NoteCounter;
    if (mode == NoteCreateMode::New)
        record.DateCreated = QLocale().toString(program.clock().now(), QLocale::ShortFormat);
    record.SaveTag = 1;
}

std::vector<QRect> screens()
{
    std::vector<QRect> result;
    for (const QScreen *screen : QGuiApplication::screens())
        result.push_back(screen->geometry());
    return result;
}

/// Notes without a place begin near the upper left of the screen that the main panel is on.
QPoint cascadeStart(const Program &program)
{
    Form *panel = program.forms.find(formNames::Menu);
    const QScreen *screen = panel != nullptr ? panel->window()->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry().topLeft() + CascadeMargin;
}

NotePlacement placementOf(const Program &program, const clsNoteProps &record)
{
    const QSize fallback(program.twips.toPixels(program.DefaultOptions.FrmWidth),
                         program.twips.toPixels(program.DefaultOptions.FrmHeight));
    return NotePlacement::of(record, program.twips, screens(), fallback, cascadeStart(program), record.Tag - 1);
}

qint32 createInStack(Program &program, clsNoteProps record, NoteCreateMode mode)
{
    stamp(program, record, true, mode);
    if (Form *stack = program.forms.find(formNames::NoteStack))
        stack->AddANote(record);
    return record.Tag;
}

/// Shows a note that is dressed, unless a dialog is open: the dialog shows it when it goes.
void showNote(Program &program, frmNote &note, NoteCreateMode mode)
{
    note.setReady();
    note.keepFirstPlace();
    if (modForms::IsDialogShowing(program))
        return;
    note.show();
    if (mode != NoteCreateMode::New)
        return;
    windowStacking::SetForegroundWindow(note);
    if (program.ProgramOptions.TitleBarOn)
        note.SetFocusToTitleBar();
}

qint32 createOnDesktop(Program &program, clsNoteProps record, NoteCreateMode mode)
{
    auto *note = new frmNote(program);
    stamp(program, record, false, mode);
    const qint32 tag = record.Tag;
    note->InitiateNote(std::move(record));
    const clsNoteProps &held = *note->GetThisNoteProps();
    if (!held.ToolBarOn)
        note->RemoveToolBar();
    note->placeAt(placementOf(program, held).geometry);
    // Boxes may open while the note is dressed, and events run behind them.
    const QPointer<frmNote> guard = note;
    note->ApplyNoteAppearance();
    if (guard != nullptr && !note->isUnloaded())
        note->ApplyNoteState(mode);
    if (guard != nullptr && !note->isUnloaded())
        showNote(program, *note, mode);
    return tag;
}

} // namespace

void tellLimit(Program &program, QWidget *owner)
{
    program.prompts().tell({QStringLiteral("You cannot have more than 100 Quillets.\nQuillet not created."),
                            QStringLiteral("error"), Message::Icon::Critical},
                           owner);
}

qint32 CreateNote(Program &program, clsNoteProps record, bool toNoteStack, NoteCreateMode mode)
{
    if (program.NoteCounter >= MostNotes && mode != NoteCreateMode::Move) {
        tellLimit(program);
        return 0;
    }
    return toNoteStack ? createInStack(program, std::move(record), mode)
                       : createOnDesktop(program, std::move(record), mode);
}

/// The note changes its place in the data file in one step and is never absent from it.
void moveNote(Program &program, const clsNoteProps &record, bool toNoteStack, bool locked)
{
    const qint32 tag = CreateNote(program, record, toNoteStack, NoteCreateMode::Move);
    Form *holder = program.forms.holderOf(tag);
    if (holder == nullptr)
        return;
    if (locked)
        holder->lockNote(tag);
    modForms::saveNote(program, *holder->recordOf(tag));
}

void createNewNote(Program &program, bool toNoteStack, QWidget *owner)
{
    if (program.NoteCounter >= MostNotes)
        tellLimit(program, owner);
    else
        CreateNote(program, program.NoteTemplate, toNoteStack, NoteCreateMode::New);
}

} // namespace modCreateNote
