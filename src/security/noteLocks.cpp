// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/noteLocks.h"

#include "forms/Program.h"
#include "forms/showModally.h"
#include "platform/Prompts.h"
#include "security/frmEnterPwd.h"

#include <QCoreApplication>
#include <QPointer>

namespace noteLocks
{

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
    if (!showModally(dialog))
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

bool checkEditing(Program &program, const clsNoteProps &note, QWidget *owner)
{
    const QString failed = QCoreApplication::translate("noteLocks", "Editing failed.");
    return checkReadOnly(program, note, readOnlyDescription(),
                         {failed, QCoreApplication::translate("noteLocks", "Editing failed")}, owner);
}

namespace
{

QString quoted(const QString &title)
{
    return QStringLiteral("'%1'").arg(title);
}

Refusal noAccess()
{
    return {QCoreApplication::translate("noteLocks", "Invalid password.  Access to note failed."),
            QCoreApplication::translate("noteLocks", "Access failed")};
}

} // namespace

bool checkTitleEditing(Program &program, const clsNoteProps &note, const QString &title, QWidget *owner)
{
    return checkReadOnly(program, note, quoted(title), noAccess(), owner);
}

bool checkUnlocking(Program &program, const clsNoteProps &note, const QString &title, QWidget *owner)
{
    const QPointer<QWidget> window = owner;
    if (AuthenticateNote(program, quoted(title), note.Pwd, owner))
        return true;
    if (window != nullptr)
        program.prompts().tell({noAccess().text, noAccess().caption}, owner);
    return false;
}

bool checkAccess(Program &program, const clsNoteProps &note, const QString &failure, QWidget *owner)
{
    return checkReadOnly(program, note, readOnlyDescription(), {failure, noAccess().caption}, owner);
}

} // namespace noteLocks
