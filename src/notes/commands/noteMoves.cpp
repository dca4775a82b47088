// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteMoves.h"

#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "platform/Clock.h"

#include <QLocale>

namespace noteMoves
{

void stamp(Program &program, clsNoteProps &record, Home home, NoteCreateMode mode)
{
    record.NoteStackOn = home == Home::NoteStack;
    if (mode != NoteCreateMode::Move)
        record.Tag = ++program.NoteCounter;
    if (mode == NoteCreateMode::New)
        record.DateCreated = QLocale().toString(program.clock().now(), QLocale::ShortFormat);
    modForms::markChanged(program, record);
}

qint32 intoNoteStack(Program &program, clsNoteProps record, NoteCreateMode mode, Lid lid)
{
    stamp(program, record, Home::NoteStack, mode);
    if (StackHolder *stack = program.forms.stack())
        stack->AddANote(record, lid);
    return record.Tag;
}

void settle(Program &program, qint32 tag)
{
    if (clsNoteProps *record = program.forms.recordOf(tag))
        modForms::saveNote(program, *record);
}

} // namespace noteMoves
