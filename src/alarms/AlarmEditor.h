// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/AttentionGroup.h"
#include "alarms/modAlarm.h"

class QDateEdit;
class QFrame;
class QTimeEdit;

/// An alarm where a dialog keeps it while it is edited. The record outlives the controls.
struct AlarmFields
{
    bool &AlarmOn;
    qint16 &AlarmDateDay;
    qint16 &AlarmDateMonth;
    qint16 &AlarmDateYear;
    qint16 &AlarmTimeHour;
    qint16 &AlarmTimeMinute;
    qint16 &AlarmTimeSecond;
    AttentionFields attention;

    template <class Record> static AlarmFields of(Record &record)
    {
        return {record.AlarmOn,       record.AlarmDateDay,    record.AlarmDateMonth,  record.AlarmDateYear,
                record.AlarmTimeHour, record.AlarmTimeMinute, record.AlarmTimeSecond, AttentionFields::of(record)};
    }
};

/// The controls of a note's alarm: its switch, date, time and how it gets attention. Each choice is written into the
/// fields at once. Where these make no date the pickers show the nearest one, or the present for an alarm that was
/// never set; what they show counts once the alarm is on.
class AlarmEditor final : public QWidget
{
    Q_OBJECT

public:
    /// As in AttentionGroup; program options have no alarm of their own.
    using Place = AttentionGroup::Place;

    AlarmEditor(Program &program, AlarmFields fields, Place place, QWidget *parent);

    void showFields();
    /// The alarm is on and not ahead of the clock.
    std::optional<Flaw> findFlaw() const;
    /// The alarm is on and still the one that was shown, which lay ahead then.
    bool isAsShown() const;

    const AttentionGroup &attention() const { return *m_attention; }
    QWidget *firstField() const;

private:
    struct Manner;
    static const Manner &mannerOf(Place place);

    void layOut(const Manner &manner);
    QLayout *makePickers(const Manner &manner);
    void enable(bool on);
    void storePickers();

    Program &m_program;
    AlarmFields m_fields;
    CheckRow *m_on;    // chkAlarm
    QFrame *m_frame;   // fraAlarmIn
    QDateEdit *m_date; // dtpAlarmDate
    QTimeEdit *m_time; // dtpAlarmTime
    AttentionGroup *m_attention;
    std::optional<modAlarm::AlarmMoment> m_shown; ///< Of an alarm that lay ahead.
};
