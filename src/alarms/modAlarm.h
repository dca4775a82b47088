// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <tuple>

/// When an alarm goes off. All of it is computed from what is handed in; nothing looks at a clock.
namespace modAlarm
{

/// Date and time of an alarm as records keep them: local time, numbers that need not make a date. Made from any
/// record that has an alarm.
struct AlarmMoment
{
    template <class Record>
    AlarmMoment(const Record &record)
        : year(record.AlarmDateYear), month(record.AlarmDateMonth), day(record.AlarmDateDay),
          hour(record.AlarmTimeHour), minute(record.AlarmTimeMinute), second(record.AlarmTimeSecond)
    {}

    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;

    bool operator==(const AlarmMoment &) const = default;
};

/// The fields of a record that tell whether and when its alarm goes off.
template <class Record>
inline constexpr auto moment = std::tuple(&Record::AlarmOn, &Record::AlarmDateDay, &Record::AlarmDateMonth,
                                          &Record::AlarmDateYear, &Record::AlarmTimeHour, &Record::AlarmTimeMinute,
                                          &Record::AlarmTimeSecond);

struct Delay
{
    qint32 seconds; ///< 0 to 86400; whole seconds counted from the second that has begun.
    bool future;    ///< At least a second ahead; an alarm of the current second is due.
};

/// A day for an alarm of a later date, the exact time on its own day. Numbers that make no date are compared like
/// those that do.
Delay AlarmDelay(const AlarmMoment &alarm, const QDateTime &now);
/// The moment to look again: the alarm's, but no more than a day ahead; `now` for one that is due.
QDateTime nextWake(const AlarmMoment &alarm, const QDateTime &now);

/// What a date picker can show that comes nearest, field by field.
QDate nearestRealDate(const AlarmMoment &alarm);
QTime nearestRealTime(const AlarmMoment &alarm);

/// Writes a moment into a record that has an alarm.
template <class Record> void setAlarmDate(Record &record, QDate date)
{
    record.AlarmDateYear = static_cast<qint16>(date.year());
    record.AlarmDateMonth = static_cast<qint16>(date.month());
    record.AlarmDateDay = static_cast<qint16>(date.day());
}
template <class Record> void setAlarmTime(Record &record, QTime time)
{
    record.AlarmTimeHour = static_cast<qint16>(time.hour());
    record.AlarmTimeMinute = static_cast<qint16>(time.minute());
    record.AlarmTimeSecond = static_cast<qint16>(time.second());
}

} // namespace modAlarm
