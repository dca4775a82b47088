// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Everything about one note. Lengths and places in twips, font size in points, colours 0x00BBGGRR or a system colour
/// reference. Any value may stand in any property: nothing is checked here.
struct clsNoteProps
{
    float FrmHeight = 0;
    float FrmWidth = 0;
    float FrmTop = 0;
    float FrmLeft = 0;
    bool FrmScrolledOn = false;
    float FrmHeightBefore = 0;
    bool ToolBarOn = false;
    QString TitleBarTitle{};
    QString DateCreated{};
    qint32 ForeColor = 0;
    qint32 BackColor = 0;
    QString FontName{};
    float FontSize = 0;
    bool FontBoldOn = false;
    bool FontItalicOn = false;
    bool BackPicOn = false;
    bool OnTopOn = false;
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
    QString Data{}; ///< The note's text, lines parted by CR LF.
    bool NoteStackOn = false;
    qint32 Tag = 0;      ///< Identity within this run; below 1 there is no note.
    QString TempTitle{}; ///< The title while it is being edited; never stored.
    QString Comments{};
    qint16 SaveTag = 0; ///< 1 when changed since it was last written to the data file.

    bool operator==(const clsNoteProps &) const = default;
};
