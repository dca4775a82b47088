// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/NoteAlarm.h"

#include "alarms/modAlarm.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "platform/Clock.h"

NoteAlarm::NoteAlarm(Program &program, Record record, QObject *parent)
    : QObject(parent), m_program(program), m_record(std::move(record))
{
    connect(&program.clock(), &Clock::clockSet, this, [this] {
        if (m_armed)
            ArmNoteAlarm();
    });
}

NoteAlarm::~NoteAlarm() = default;

void NoteAlarm::ArmNoteAlarm()
{
    const clsNoteProps *record = m_record();
    if (record == nullptr || !record->AlarmOn) {
        Destroy();
        return;
    }
    AlarmSet(modAlarm::nextWake(*record, m_program.clock().now()));
    setArmed(true);
}

void NoteAlarm::Destroy()
{
    if (m_timer != nullptr)
        m_timer->stop();
    setArmed(false);
}

void NoteAlarm::AlarmSet(const QDateTime &moment)
{
    if (m_timer == nullptr) {
        m_timer = m_program.clock().makeAlarm();
        connect(m_timer.get(), &WallAlarm::due, this, &NoteAlarm::AlarmCont);
    }
    m_timer->start(moment);
}

void NoteAlarm::AlarmCont()
{
    clsNoteProps *record = m_record();
    const bool isOn = record != nullptr && record->AlarmOn;
    if (!isOn || modAlarm::AlarmDelay(*record, m_program.clock().now()).future) {
        ArmNoteAlarm();
        return;
    }
    if (m_program.file.LoadingData)
        return;
    record->AlarmOn = false;
    modForms::markChanged(m_program, *record);
    setArmed(false);
    emit fired();
}

void NoteAlarm::setArmed(bool armed)
{
    if (std::exchange(m_armed, armed) != armed)
        emit armedChanged(armed);
}
