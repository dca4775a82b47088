// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a note looks like, where a dialog keeps it while it is edited. The record outlives the controls that write
/// into it.
struct AppearanceFields
{
    qint32 &ForeColor;
    qint32 &BackColor;
    QString &FontName;
    float &FontSize;
    bool &FontBoldOn;
    bool &FontItalicOn;
    bool &BackPicOn;
    QString &PicFile;

    template <class Record> static AppearanceFields of(Record &record)
    {
        return {record.ForeColor,  record.BackColor,    record.FontName,  record.FontSize,
                record.FontBoldOn, record.FontItalicOn, record.BackPicOn, record.PicFile};
    }
};
