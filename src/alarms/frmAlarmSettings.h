// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsAlarmProps.h"
#include "forms/Form.h"

#include <QDialog>

class CheckRow;
class Program;
class QDateEdit;
class QFrame;
class QPushButton;
class QTimeEdit;

/// Lets the user set the alarm of one note. It works on a copy, which the caller takes back with AlarmResult; waiting
/// for the alarm is not its business.
class frmAlarmSettings final : public QDialog, public Form
{
    Q_OBJECT

public:
    static constexpr QStringView Name = u"frmAlarmSettings";

    frmAlarmSettings(Program &program, QWidget *owner);
    ~frmAlarmSettings() override;

    /// An alarm that is off is shown with the present date and time.
    void Initialize(const clsNoteProps &record);
    bool isAccepted() const { return m_accepted; }
    /// Writes the alarm into the record when OK was chosen, else changes nothing.
    void AlarmResult(clsNoteProps &record) const;

    QWidget *window() override { return this; }

protected:
    void accept() override;
    void reject() override;

private:
    QWidget *makeFrame();
    QWidget *makeButtons();
    void makeSoundButton();
    void connectControls();
    void showAlarm();
    void showSoundFile();
    void chooseSoundFile();
    /// Tells what is wrong and returns false where the alarm cannot be set like this.
    bool checkAlarm();
    void refuse(const QString &text, const QString &caption);

    Program &m_program;
    clsAlarmProps m_alarm;
    bool m_accepted = false;
    CheckRow *m_on;           // chkAlarm
    QFrame *m_frame;          // fraAlarmIn
    QDateEdit *m_date;        // dtpAlarmDate
    QTimeEdit *m_time;        // dtpAlarmTime
    CheckRow *m_flash;        // chkFlash
    CheckRow *m_soundOn;      // chkSoundFile
    QPushButton *m_soundFile; // cmdSoundFile
};
