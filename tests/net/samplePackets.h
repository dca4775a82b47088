// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"
#include "model/modStreams.h"
#include "net/Packet.h"

inline QByteArray sampleRecord(const QString &title = QStringLiteral("Title"), const QString &text = {})
{
    clsNoteProps note;
    note.TitleBarTitle = title;
    note.Data = text;
    QByteArray record;
    modStreams::EncodeSendRecord(note, record);
    return record;
}

inline Packet samplePacket(const QString &text = QStringLiteral("caf\u00E9 \U0001F600\r\n"))
{
    return {QStringLiteral("v.1.0.0"), QStringLiteral("desk (127.0.0.1)"), QStringLiteral("Ann"),
            sampleRecord(QStringLiteral("Title"), text)};
}
