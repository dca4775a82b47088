// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The look and text of a note, as sending takes them over.
struct clsSend
{
    float FrmHeight = 0;
    float FrmWidth = 0;
    float FrmTop = 0;
    float FrmLeft = 0;
    bool FrmScrolledOn = false;
    float FrmHeightBefore = 0;
    bool ToolBarOn = false;
    QString TitleBarTitle{};
    qint32 ForeColor = 0;
    qint32 BackColor = 0;
    QString FontName{};
    float FontSize = 0;
    bool FontBoldOn = false;
    bool FontItalicOn = false;
    bool BackPicOn = false;
    QString Data{};

    bool operator==(const clsSend &) const = default;
};
