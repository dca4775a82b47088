// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/noteLocks.h"

#include "platform/Prompts.h"
#include "security/frmEnterPwd.h"
#include "shell/common/Program.h"

#include <QCoreApplication>
#include <QPointer>

namespace noteLocks {

bool isReadOnly(const clsNoteProps &note)
{
    return note.PwdOn && note.PwdReadonlyOn;
}

bool opensLocked(const clsNoteProps &note)
{
    return note.PwdOn && note.PwdOpenCloseOn;
}

QString readOnlyDescription()
{
    return QCoreApplication::translate("noteLocks", "This Quillet is Read-only.");
}

bool AuthenticateNote(Program &program, const QString &description, const QString &pwd, QWidget *owner)
{
    if (program.forms.find(frmEnterPwd::Name) != nullptr)
        return false;
    // The window it belongs to may go while it is open, and takes it along.
    const QPointer<frmEnterPwd> dialog = new frmEnterPwd(program, owner);
    dialog->Initialize(description);
    dialog->exec();
    if (dialog == nullptr)
        return false;
    const bool accepted = dialog->passOn(pwd);
    dialog->unload();
    return accepted;
}

bool checkReadOnly(Program &program, const clsNoteProps &note, const QString &description, const Refusal &refusal,
                   QWidget *owner)
{
    if (!isReadOnly(note))
        return true;
    const QPointer<QWidget> window = owner;
    if (AuthenticateNote(program, description, note.Pwd, owner))
        return true;
    program.prompts().tell({refusal.text, refusal.caption}, window);
    return false;
}

} // namespace noteLocks
