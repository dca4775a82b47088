// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteTitles.h"

#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "platform/Prompts.h"
#include "security/frmEnterPwd.h"

#include <QCoreApplication>
#include <QWidget>

namespace noteTitles
{
namespace
{
constexpr int ShortTitleWidth = 2000; // design twips
}

QString title(const clsNoteProps &note)
{
    return note.TitleBarTitle.isEmpty() ? note.TempTitle : note.TitleBarTitle;
}

QString shortTitle(const clsNoteProps &note, const QFont &font)
{
    return textShortening::shortened(title(note), Twips::design(ShortTitleWidth), font);
}

QString promptTitle(const clsNoteProps &note, int reserve)
{
    return textShortening::shortened(title(note), frmEnterPwd::descriptionWidth() - Twips::design(reserve),
                                     frmEnterPwd::descriptionFont());
}

bool take(Program &program, clsNoteProps &note, const QString &typed, bool insist, QWidget *owner)
{
    if (typed.trimmed().isEmpty()) {
        if (insist)
            tellBlank(program, owner);
        return false;
    }
    note.TitleBarTitle = typed;
    modForms::markChanged(program, note);
    return true;
}

void tellBlank(Program &program, QWidget *owner)
{
    program.prompts().tell({QCoreApplication::translate("noteTitles", "You cannot have a zero-length title."),
                            QCoreApplication::translate("noteTitles", "Error"), Message::Icon::Critical},
                           owner);
}

bool confirmDeletion(Program &program, const clsNoteProps &note, QWidget *owner)
{
    const QString text = QCoreApplication::translate("noteTitles", "Delete note '") + shortTitle(note, owner->font()) +
                         QCoreApplication::translate("noteTitles", "' ?");
    return program.prompts().ask({text, QCoreApplication::translate("noteTitles", "Note Deletion"), Message::Icon::None,
                                  Message::Buttons::OkCancel},
                                 owner) == Prompts::Answer::Ok;
}

} // namespace noteTitles
