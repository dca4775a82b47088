// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/modCreateNote.h"

#include "forms/Form.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/whenAnswered.h"
#include "notes/NotePlacement.h"
#include "notes/desktopHome.h"
#include "notes/frmNote.h"
#include "platform/Prompts.h"
#include "platform/windowStacking.h"

#include <QGuiApplication>
#include <QScreen>

namespace modCreateNote
{
namespace
{

constexpr QPoint CascadeMargin(48, 48);

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

/// Shows a note that is dressed, unless something is to be answered first: it is shown after that.
void showNote(Program &program, frmNote &note, NoteCreateMode mode)
{
    if (modForms::isAnswerAwaited(program))
        return whenAnswered(program, &note, [&program] { modForms::ShowNoteWindows(program); });
    note.show();
    if (mode != NoteCreateMode::New)
        return;
    windowStacking::SetForegroundWindow(note);
    if (program.ProgramOptions.TitleBarOn)
        note.SetFocusToTitleBar();
}

qint32 createOnDesktop(Program &program, clsNoteProps record, NoteCreateMode mode, Lid lid)
{
    auto *note = new frmNote(program, DesktopHome);
    noteMoves::stamp(program, record, Home::Desktop, mode);
    const qint32 tag = record.Tag;
    const QRect geometry = placementOf(program, record).geometry;
    if (note->become(std::move(record), geometry, mode, lid))
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

qint32 CreateNote(Program &program, clsNoteProps record, Home home, NoteCreateMode mode, Lid lid)
{
    if (program.NoteCounter >= MostNotes && mode != NoteCreateMode::Move) {
        tellLimit(program);
        return 0;
    }
    return home == Home::NoteStack ? noteMoves::intoNoteStack(program, std::move(record), mode, lid)
                                   : createOnDesktop(program, std::move(record), mode, lid);
}

void moveToDesktop(Program &program, const clsNoteProps &record, Lid lid)
{
    noteMoves::settle(program, CreateNote(program, record, Home::Desktop, NoteCreateMode::Move, lid));
}

void createNewNote(Program &program, Home home, QWidget *owner)
{
    if (program.NoteCounter >= MostNotes)
        tellLimit(program, owner);
    else
        CreateNote(program, program.NoteTemplate, home, NoteCreateMode::New);
}

} // namespace modCreateNote
