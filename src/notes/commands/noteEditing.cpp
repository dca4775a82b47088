// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteEditing.h"

#include "drawing/endlessRuns.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "notes/commands/noteClipboard.h"
#include "notes/parts/NoteBody.h"
#include "platform/Prompts.h"
#include "security/noteLocks.h"

#include <QCoreApplication>

namespace noteEditing
{
bool mayEdit(Program &program, const clsNoteProps &note, QWidget *owner)
{
    if (!noteLocks::checkEditing(program, note, owner))
        return false;
    if (!endlessRuns::isIn(note.Data))
        return true;
    program.prompts().tell(
        {QCoreApplication::translate("noteEditing", "This Quillet has a line that is too long to be edited.  "
                                                    "It can be copied, printed and moved."),
         QCoreApplication::translate("noteEditing", "Editing failed"), Message::Icon::Exclamation},
        owner);
    return false;
}

void paste(Program &program, clsNoteProps &note, NoteBody &body)
{
    const auto text = noteClipboard::text();
    if (!text || noteLocks::isReadOnly(note))
        return;
    body.commit();
    if (endlessRuns::isIn(note.Data) || endlessRuns::isIn(*text))
        body.setText(*text);
    else
        body.replaceText(note.Data, *text);
    note.Data = *text;
    modForms::markChanged(program, note);
}

void tellUnpastable(Program &program, QWidget *owner)
{
    program.prompts().tell(
        {QCoreApplication::translate("noteEditing", "This text has a line that is too long to be edited.  "
                                                    "Paste of the note's menu takes it as the whole text."),
         QCoreApplication::translate("noteEditing", "Editing failed"), Message::Icon::Exclamation},
        owner);
}

} // namespace noteEditing
