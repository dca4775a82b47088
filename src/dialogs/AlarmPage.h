// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/AttentionGroup.h"
#include "model/clsSettingsProps.h"

class QDateEdit;
class QFrame;
class QTimeEdit;

/// The alarm of one note. Each choice is written into the record at once; the pickers show the nearest real date and
/// time where the record holds none.
class AlarmPage final : public QWidget
{
    Q_OBJECT

public:
    AlarmPage(Program &program, clsSettingsProps &settings, QWidget *parent);

    void showFields();
    /// False, after a box, when the alarm is on and not ahead of the clock.
    bool isAhead();

    AttentionGroup &attention() { return *m_attention; }
    QWidget *firstField() const;
    QWidget *dateField() const;

private:
    void makePickers();
    void layOut();
    void enable(bool on);
    void storePickers();

    Program &m_program;
    clsSettingsProps &m_settings;
    CheckRow *m_on;    // chkAlarm
    QFrame *m_frame;   // fraAlarmIn
    QDateEdit *m_date; // dtpAlarmDate
    QTimeEdit *m_time; // dtpAlarmTime
    AttentionGroup *m_attention;
};
