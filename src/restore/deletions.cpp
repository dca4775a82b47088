// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/deletions.h"

#include "controls/QuietLine.h"
#include "forms/Form.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "notes/modCreateNote.h"
#include "platform/windowStacking.h"

#include <QCoreApplication>

using namespace std::chrono_literals;

namespace deletions
{
namespace
{

constexpr auto OfferLasts = 8s;

void showAgain(Program &program, const DeletedNote &deleted, qint32 tag)
{
    if (StackHolder *stack = program.forms.stack(); stack != nullptr && deleted.record.NoteStackOn)
        stack->arrange(deleted.neighbours, tag);
    else if (Form *note = program.forms.note(tag); note != nullptr && note->window()->isVisible())
        windowStacking::SetForegroundWindow(*note->window());
}

} // namespace

void offerUndo(Program &program, const DeletedNote &deleted)
{
    auto *line = new QuietLine(program, {QCoreApplication::translate("deletions", "Deleted."),
                                         QCoreApplication::translate("deletions", "Undo"), QKeySequence::Undo,
                                         OfferLasts, [&program, deleted] { undo(program, deleted); }});
    line->showBy(deleted.place);
    // The window that had the focus has gone; the keys are to take the deletion back.
    if (!deleted.record.NoteStackOn)
        windowStacking::SetForegroundWindow(*line);
}

void undo(Program &program, const DeletedNote &deleted)
{
    const Home home = deleted.record.NoteStackOn ? Home::NoteStack : Home::Desktop;
    const qint32 tag = modCreateNote::CreateNote(program, deleted.record, home, NoteCreateMode::Move);
    noteMoves::settle(program, tag);
    showAgain(program, deleted, tag);
}

} // namespace deletions
