// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the alarm dialog edits.
struct clsAlarmProps
{
    bool AlarmOn = false;
    qint16 AlarmDateDay = 0;
    qint16 AlarmDateMonth = 0;
    qint16 AlarmDateYear = 0;
    qint16 AlarmTimeHour = 0;
    qint16 AlarmTimeMinute = 0;
    qint16 AlarmTimeSecond = 0;
    bool SoundFileOn = false;
    QString SoundFile{};
    bool FlashOn = false;

    bool operator==(const clsAlarmProps &) const = default;
};
