// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/Packet.h"

#include "model/modStreams.h"

QByteArray encodePacket(const Packet &packet)
{
    QByteArray bytes;
    qsizetype position = sizeof(qint32);
    modStreams::WriteString(packet.version, position, bytes);
    modStreams::WriteString(packet.identity, position, bytes);
    modStreams::WriteString(packet.senderName, position, bytes);
    bytes += packet.record;
    position = 0;
    modStreams::WriteLong(static_cast<qint32>(bytes.size()), position, bytes);
    return bytes;
}
