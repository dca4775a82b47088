// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QObject>

#include <functional>
#include <memory>

class Program;
class WallAlarm;

/// Waits for the alarm of one note, on the desktop or in the NoteStack, and switches it off in the record when it
/// goes off. It only tells: flashing, sound and picture are its owner's. A change of the clock makes it compute anew.
class NoteAlarm final : public QObject
{
    Q_OBJECT

public:
    /// Asked whenever the record is needed; null when the note is gone. It must be callable as long as the alarm lives.
    using Record = std::function<clsNoteProps *()>;

    NoteAlarm(Program &program, Record record, QObject *parent = nullptr);
    ~NoteAlarm() override;

    /// Goes by the record as it is now: waits for an alarm that is on, stops waiting for one that is off. To be said
    /// after every change of the alarm, and once more when a load has ended: during a load nothing goes off.
    void ArmNoteAlarm();
    /// Stops waiting and leaves the record as it is, so that the next run waits again.
    void Destroy();
    bool isArmed() const { return m_armed; }

signals:
    void armedChanged(bool armed);
    /// The alarm went off; it is off in the record, which counts as changed. The note may go in answer, by deleteLater.
    void fired();

private:
    void AlarmSet(const QDateTime &moment);
    void AlarmCont();
    void setArmed(bool armed);

    Program &m_program;
    Record m_record;
    std::unique_ptr<WallAlarm> m_timer; ///< Made when first armed.
    bool m_armed = false;
};
