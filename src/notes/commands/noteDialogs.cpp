// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteDialogs.h"

#include "alarms/frmAlarmSettings.h"
#include "dialogs/frmSettings.h"
#include "drawing/textShortening.h"
#include "exchange/frmEmail.h"
#include "exchange/frmSend.h"
#include "forms/NoteHolder.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "forms/showModally.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/NoteTitle.h"
#include "security/frmPwdSettings.h"

#include <QCoreApplication>
#include <QWidget>

#include <algorithm>

namespace noteDialogs
{
namespace
{

/// Makes a dialog for a note, lets `prepare` dress it, shows it and, when it was accepted, lets `take` write its result
/// into the record.
template <class Dialog, class Prepare, class Take>
void open(Program &program, qint32 tag, QWidget *owner, const Prepare &prepare, const Take &take)
{
    clsNoteProps *record = program.forms.recordOf(tag);
    if (record == nullptr)
        return;
    const QPointer<QWidget> window = owner;
    const QPointer<Dialog> dialog = new Dialog(program, owner);
    dialog->Initialize(*record);
    prepare(*dialog, *record);
    if (!showModally(dialog))
        return;
    record = program.forms.recordOf(tag);
    const bool taken = record != nullptr && take(*dialog, *record);
    if (taken)
        modForms::markChanged(program, *record);
    dialog->unload();
    // Window managers give the focus to a window of the task bar, where notes are not.
    if (window != nullptr && window->isVisible())
        window->activateWindow();
    NoteHolder *holder = program.forms.holderOf(tag);
    if (taken && holder != nullptr)
        holder->recordChanged(tag);
}

/// Names the note in the dialog's caption.
auto captioned(const char *caption)
{
    return [caption](QWidget &dialog, const clsNoteProps &record) {
        const QString title =
            textShortening::shortened(noteTitles::title(record), dialog.sizeHint().width() / 3, NoteTitle::font());
        dialog.setWindowTitle(QCoreApplication::translate("noteDialogs", caption).arg(title));
    };
}

constexpr auto TakeNothing = [](const auto &, const clsNoteProps &) { return false; };

void openSettings(Program &program, qint32 tag, QWidget *owner, const Captions &)
{
    open<frmSettings>(program, tag, owner, captioned(QT_TRANSLATE_NOOP("noteDialogs", "Settings for '%1' - Quillets")),
                      [](frmSettings &dialog, clsNoteProps &record) { return dialog.SettingsResult(record); });
}

void openSend(Program &program, qint32 tag, QWidget *owner, const Captions &captions)
{
    open<frmSend>(program, tag, owner, captioned(captions.send), TakeNothing);
}

void openAlarm(Program &program, qint32 tag, QWidget *owner, const Captions &)
{
    open<frmAlarmSettings>(
        program, tag, owner, [](const auto &, const auto &) {},
        [](frmAlarmSettings &dialog, clsNoteProps &record) { return dialog.AlarmResult(record); });
}

void openPassword(Program &program, qint32 tag, QWidget *owner, const Captions &)
{
    open<frmPwdSettings>(
        program, tag, owner, [](const auto &, const auto &) {},
        [](frmPwdSettings &dialog, clsNoteProps &record) { return dialog.PwdResult(record); });
}

void openEmail(Program &program, qint32 tag, QWidget *owner, const Captions &captions)
{
    const clsNoteProps *record = program.forms.recordOf(tag);
    if (record != nullptr && !frmEmail::isMissingOptions(program, clsNoteProps(*record), owner))
        open<frmEmail>(program, tag, owner, captioned(captions.email), TakeNothing);
}

/// In no order.
constexpr NoteDialog Dialogs[] = {
    {NoteCommand::Settings, QT_TRANSLATE_NOOP("noteDialogs", "Access to Settings failed."), openSettings},
    {NoteCommand::Alarm, QT_TRANSLATE_NOOP("noteDialogs", "Access to Alarm functions failed."), openAlarm},
    {NoteCommand::Password, QT_TRANSLATE_NOOP("noteDialogs", "Access to Password functions failed."), openPassword},
    {NoteCommand::Send, QT_TRANSLATE_NOOP("noteDialogs", "Access to Send functions failed."), openSend},
    {NoteCommand::Email, QT_TRANSLATE_NOOP("noteDialogs", "Access to E-mail functions failed."), openEmail},
};

} // namespace

const NoteDialog *find(NoteCommand command)
{
    const auto *found = std::find_if(std::begin(Dialogs), std::end(Dialogs),
                                     [command](const NoteDialog &dialog) { return dialog.command == command; });
    return found == std::end(Dialogs) ? nullptr : found;
}

QString failure(const NoteDialog &dialog)
{
    return QCoreApplication::translate("noteDialogs", dialog.failure);
}

} // namespace noteDialogs
