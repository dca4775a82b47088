// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteEditing.h"

#include "notes/commands/noteClipboard.h"
#include "notes/parts/NoteBody.h"
#include "platform/Prompts.h"
#include "security/noteLocks.h"
#include "forms/Program.h"

#include <QCoreApplication>

namespace noteEditing
{
namespace
{

/// A text box lays out a line as a whole: a longer one would keep it busy for many seconds.
constexpr qsizetype LongestLine = 250'000;

bool hasEndlessLine(const QString &text)
{
    qsizetype begin = 0;
    while (text.size() - begin > LongestLine) {
        const qsizetype end = text.indexOf(u'\n', begin);
        if (end < 0 || end - begin > LongestLine)
            return true;
        begin = end + 1;
    }
    return false;
}

} // namespace

bool mayEdit(Program &program, const clsNoteProps &note, QWidget *owner)
{
    if (!noteLocks::checkEditing(program, note, owner))
        return false;
    if (!hasEndlessLine(note.Data))
        return true;
    program.prompts().tell(
        {QCoreApplication::translate("noteEditing", "This Quillet has a line that is too long to be edited.  "
                                                    "It can be copied, printed and moved."),
         QCoreApplication::translate("noteEditing", "Editing failed"), Message::Icon::Exclamation},
        owner);
    return false;
}

void paste(clsNoteProps &note, NoteBody &body)
{
    const auto text = noteClipboard::text();
    if (!text || noteLocks::isReadOnly(note))
        return;
    body.commit();
    if (hasEndlessLine(note.Data) || hasEndlessLine(*text))
        body.setText(*text);
    else
        body.replaceText(note.Data, *text);
    note.Data = *text;
    note.SaveTag = 1;
}

} // namespace noteEditing
