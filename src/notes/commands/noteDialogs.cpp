// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteDialogs.h"

#include "alarms/frmAlarmSettings.h"
#include "dialogs/controls/showModally.h"
#include "dialogs/frmSettings.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/TextShortening.h"
#include "security/frmPwdSettings.h"
#include "shell/common/Program.h"

#include <QCoreApplication>

namespace noteDialogs {
namespace {

clsNoteProps *recordOf(Program &program, qint32 tag)
{
    Form *holder = program.forms.holderOf(tag);
    return holder != nullptr ? holder->recordOf(tag) : nullptr;
}

/// Shows a dialog for a note and, when it was accepted, lets `take` write its result into the record.
template <class Dialog, class Take>
void open(Program &program, qint32 tag, const QPointer<Dialog> &dialog, const Take &take)
{
    if (const clsNoteProps *record = recordOf(program, tag))
        dialog->Initialize(*record);
    if (!showModally(dialog))
        return;
    clsNoteProps *record = recordOf(program, tag);
    const bool taken = record != nullptr && take(*dialog, *record);
    if (taken)
        record->SaveTag = 1;
    dialog->unload();
    Form *holder = program.forms.holderOf(tag);
    if (taken && holder != nullptr)
        holder->recordChanged(tag);
}

} // namespace

void openSettings(Program &program, qint32 tag, QWidget *owner)
{
    const QPointer<frmSettings> dialog = new frmSettings(program, owner);
    if (const clsNoteProps *record = recordOf(program, tag)) {
        const QString title = textShortening::shortened(noteTitles::title(*record), dialog->sizeHint().width() / 3, dialog->font());
        dialog->setWindowTitle(QCoreApplication::translate("noteDialogs", "Settings for '") + title + u'\'' +
                               QCoreApplication::translate("noteDialogs", " - Quillets"));
    }
    open(program, tag, dialog, [](frmSettings &settings, clsNoteProps &record) { return settings.SettingsResult(record); });
}

void openAlarm(Program &program, qint32 tag, QWidget *owner)
{
    const QPointer<frmAlarmSettings> dialog = new frmAlarmSettings(program, owner);
    open(program, tag, dialog, [](frmAlarmSettings &alarm, clsNoteProps &record) {
        alarm.AlarmResult(record);
        return alarm.isAccepted();
    });
}

void openPassword(Program &program, qint32 tag, QWidget *owner)
{
    const QPointer<frmPwdSettings> dialog = new frmPwdSettings(program, owner);
    open(program, tag, dialog, [](frmPwdSettings &password, clsNoteProps &record) { return password.PwdResult(record); });
}

} // namespace noteDialogs
