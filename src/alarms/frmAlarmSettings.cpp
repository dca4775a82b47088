// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/frmAlarmSettings.h"

#include "alarms/AlarmEditor.h"
#include "alarms/modAlarm.h"
#include "controls/CheckRow.h"
#include "controls/dialogButtons.h"
#include "controls/recordMerge.h"
#include "forms/Program.h"
#include "model/modCopyObject.h"
#include "model/recordFields.h"
#include "platform/Clock.h"

#include <QVBoxLayout>

namespace
{
constexpr int Margin = 18;
}

frmAlarmSettings::frmAlarmSettings(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmAlarmSettings", tr("This note's alarm settings"), owner),
      m_editor(new AlarmEditor(program, AlarmFields::of(m_alarm), AlarmEditor::Place::AlarmDialog, this))
{
    auto *buttons =
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}});
    buttons->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin - CheckRow::MarkRoom, Margin, Margin, Margin);
    layout->setSpacing(Margin / 2);
    layout->addWidget(m_editor);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAlarmSettings::Initialize(const clsNoteProps &record)
{
    modCopyObject::CopyNoteToAlarm(record, m_opened);
    m_alarm = m_opened;
    if (!m_alarm.AlarmOn) {
        const QDateTime now = program().clock().now();
        modAlarm::setAlarmDate(m_alarm, now.date());
        modAlarm::setAlarmTime(m_alarm, now.time());
    }
    m_editor->showFields();
    m_editor->firstField()->setFocus();
}

bool frmAlarmSettings::AlarmResult(clsNoteProps &record) const
{
    if (!isAccepted())
        return false;
    clsAlarmProps present;
    modCopyObject::CopyNoteToAlarm(record, present);
    modCopyObject::CopyAlarmToNote(recordMerge::merged(m_alarm, m_opened, present, recordFields::alarm<clsAlarmProps>,
                                                       modAlarm::moment<clsAlarmProps>),
                                   record);
    return true;
}

std::optional<Flaw> frmAlarmSettings::findFlaw()
{
    if (const auto flaw = m_editor->findFlaw())
        return flaw;
    return m_alarm.AlarmOn ? m_editor->attention().findFlaw() : std::nullopt;
}
