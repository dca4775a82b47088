// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteDialogs.h"

#include "alarms/frmAlarmSettings.h"
#include "forms/showModally.h"
#include "dialogs/frmSettings.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/NoteTitle.h"
#include "drawing/textShortening.h"
#include "security/frmPwdSettings.h"
#include "forms/Program.h"

#include <QCoreApplication>
#include <QWidget>

namespace noteDialogs
{
namespace
{

clsNoteProps *recordOf(Program &program, qint32 tag)
{
    Form *holder = program.forms.holderOf(tag);
    return holder != nullptr ? holder->recordOf(tag) : nullptr;
}

/// Makes a dialog for a note, lets `prepare` dress it, shows it and, when it was accepted, lets `take` write its result
/// into the record.
template <class Dialog, class Prepare, class Take>
void open(Program &program, qint32 tag, QWidget *owner, const Prepare &prepare, const Take &take)
{
    clsNoteProps *record = recordOf(program, tag);
    if (record == nullptr)
        return;
    const QPointer<QWidget> window = owner;
    const QPointer<Dialog> dialog = new Dialog(program, owner);
    dialog->Initialize(*record);
    prepare(*dialog, *record);
    if (!showModally(dialog))
        return;
    record = recordOf(program, tag);
    const bool taken = record != nullptr && take(*dialog, *record);
    if (taken)
        record->SaveTag = 1;
    dialog->unload();
    // Window managers give the focus to a window of the task bar, where notes are not.
    if (window != nullptr && window->isVisible())
        window->activateWindow();
    Form *holder = program.forms.holderOf(tag);
    if (taken && holder != nullptr)
        holder->recordChanged(tag);
}

} // namespace

void openSettings(Program &program, qint32 tag, QWidget *owner)
{
    const auto caption = [](frmSettings &dialog, const clsNoteProps &record) {
        const QString title =
            textShortening::shortened(noteTitles::title(record), dialog.sizeHint().width() / 3, NoteTitle::font());
        dialog.setWindowTitle(QCoreApplication::translate("noteDialogs", "Settings for '") + title + u'\'' +
                              QCoreApplication::translate("noteDialogs", " - Quillets"));
    };
    open<frmSettings>(program, tag, owner, caption,
                      [](frmSettings &dialog, clsNoteProps &record) { return dialog.SettingsResult(record); });
}

void openAlarm(Program &program, qint32 tag, QWidget *owner)
{
    open<frmAlarmSettings>(
        program, tag, owner, [](const auto &, const auto &) {},
        [](frmAlarmSettings &dialog, clsNoteProps &record) {
            dialog.AlarmResult(record);
            return dialog.isAccepted();
        });
}

void openPassword(Program &program, qint32 tag, QWidget *owner)
{
    open<frmPwdSettings>(
        program, tag, owner, [](const auto &, const auto &) {},
        [](frmPwdSettings &dialog, clsNoteProps &record) { return dialog.PwdResult(record); });
}

} // namespace noteDialogs
