// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Packet.h"

#include <optional>

/// Gathers a packet from the bytes of a stranger, in pieces of any size. It keeps what has arrived and reserves nothing
/// for what a length claims; lengths that cannot be true are found as soon as they are there.
class PacketReader
{
public:
    enum class Status
    {
        Incomplete,
        Bad, ///< For good: more bytes change nothing.
        Packet
    };

    /// Bytes behind a whole packet are not looked at, except those that come in one piece with its end.
    Status feed(QByteArrayView bytes);
    Status status() const { return m_status; }

    /// The length that the packet claims, once it is known and can be believed.
    std::optional<qint32> claimedLength() const { return m_length; }
    /// More bytes came than were claimed: bad, though all that was claimed is there.
    bool isTooLong() const { return m_length && m_received.size() > *m_length; }
    /// To be asked once, when the status is Packet.
    Packet takePacket();

private:
    Status judge();
    bool hasSoundLengths() const;
    bool decode();

    QByteArray m_received;
    std::optional<qint32> m_length;
    Packet m_packet;
    Status m_status = Status::Incomplete;
};
