// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the settings dialog of one note edits.
struct clsSettingsProps
{
    qint32 ForeColor = 0;
    qint32 BackColor = 0;
    QString FontName{};
    float FontSize = 0;
    bool FontBoldOn = false;
    bool FontItalicOn = false;
    bool BackPicOn = false;
    QString PicFile{};
    bool PwdOn = false;
    QString Pwd{};
    bool PwdReadonlyOn = false;
    bool PwdOpenCloseOn = false;
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

    bool operator==(const clsSettingsProps &) const = default;
};
