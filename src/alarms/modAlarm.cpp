// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/modAlarm.h"

#include <algorithm>
#include <optional>

namespace modAlarm
{
namespace
{

constexpr qint32 Day = 86400; // seconds
constexpr qint32 Hour = 3600;
constexpr qint32 Minute = 60;
constexpr int FirstYear = 1753; // of date pickers
constexpr int LastYear = 9999;

/// Compares field by field, the greatest first; 0 or less: due.
qint32 secondsByFields(const AlarmMoment &alarm, const QDateTime &now)
{
    const QDate today = now.date();
    for (const int days : {alarm.year - today.year(), alarm.month - today.month(), alarm.day - today.day()})
        if (days != 0)
            return days > 0 ? Day : 0;
    const int hours = alarm.hour - now.time().hour();
    const int minutes = alarm.minute - now.time().minute();
    const int seconds = alarm.second - now.time().second();
    if (hours != 0)
        return hours > 0 ? hours * Hour + minutes * Minute + seconds : 0;
    if (minutes != 0)
        return minutes > 0 ? minutes * Minute + seconds : 0;
    return seconds;
}

/// What the clock on the wall shows, in milliseconds of days that all have 24 hours.
qint64 wallTime(QDate date, QTime time)
{
    return QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch();
}

qint64 wallTime(const QDateTime &moment)
{
    return wallTime(moment.date(), moment.time());
}

/// The moment at which the clock will show the alarm's time, none for numbers that make no date. A time that comes
/// twice is its first coming that is still ahead, one that is left out is as much later as the clock is put forward.
std::optional<QDateTime> realMoment(const AlarmMoment &alarm, const QDateTime &now)
{
    const QDate date(alarm.year, alarm.month, alarm.day);
    const QTime time(alarm.hour, alarm.minute, alarm.second);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    const qint64 wanted = wallTime(date, time);
    const QDateTime straight = now.addMSecs(wanted - wallTime(now));
    const QDateTime corrected = straight.addMSecs(wanted - wallTime(straight));
    return wallTime(corrected) == wanted ? corrected : std::max(straight, corrected);
}

bool isToday(const AlarmMoment &alarm, const QDateTime &now)
{
    return QDate(alarm.year, alarm.month, alarm.day) == now.date();
}

} // namespace

Delay AlarmDelay(const AlarmMoment &alarm, const QDateTime &now)
{
    qint64 seconds = secondsByFields(alarm, now);
    if (seconds < 1)
        return {0, false};
    const QDateTime wholeSecond = now.addMSecs(-now.time().msec());
    if (const auto moment = realMoment(alarm, wholeSecond); moment && isToday(alarm, now))
        seconds = wholeSecond.secsTo(*moment);
    return {static_cast<qint32>(std::clamp<qint64>(seconds, 1, Day)), true};
}

QDateTime nextWake(const AlarmMoment &alarm, const QDateTime &now)
{
    const Delay delay = AlarmDelay(alarm, now);
    if (!delay.future)
        return now;
    // Without this an alarm of tomorrow morning that is set in the evening would ring tomorrow evening.
    if (const auto moment = realMoment(alarm, now))
        return std::min(*moment, now.addSecs(Day));
    return now.addSecs(delay.seconds);
}

QDate nearestRealDate(const AlarmMoment &alarm)
{
    const int year = std::clamp(alarm.year, FirstYear, LastYear);
    const int month = std::clamp(alarm.month, 1, 12);
    return {year, month, std::clamp(alarm.day, 1, QDate(year, month, 1).daysInMonth())};
}

QTime nearestRealTime(const AlarmMoment &alarm)
{
    return {std::clamp(alarm.hour, 0, 23), std::clamp(alarm.minute, 0, 59), std::clamp(alarm.second, 0, 59)};
}

} // namespace modAlarm
