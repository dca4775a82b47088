// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The program-wide options, most of them what a new note starts with. Units as in clsNoteProps.
struct clsprogramoptions
{
    float FrmHeight = 0;
    float FrmWidth = 0;
    bool ToolBarOn = false;
    bool TitleBarOn = false; ///< Ask for a title when a note is made.
    qint32 ForeColor = 0;
    qint32 BackColor = 0;
    QString FontName{};
    float FontSize = 0;
    bool FontBoldOn = false;
    bool FontItalicOn = false;
    bool BackPicOn = false;
    bool OnTopOn = false;
    QString PicFile{};
    bool PwdReadonlyOn = false;
    bool PwdOpenCloseOn = false;
    bool SoundFileOn = false;
    QString SoundFile{};
    bool FlashOn = false;
    QString NameName{};
    QString NameTitle{};
    QString Org{};
    qint32 ListeningPort = 0; ///< 0: the program does not listen.
    QString SMTPServer{};
    QString EmailAddress{};
    QString AddressBook{};
    QString SendBook{};

    // These two are exchanged as text. A setter that returns false has left its property unchanged.
    [[nodiscard]] bool setTitleBarOn(QStringView text);
    QString TitleBarOnText() const;
    [[nodiscard]] bool setListeningPort(QStringView text);
    QString ListeningPortText() const;

    bool operator==(const clsprogramoptions &) const = default;
};
