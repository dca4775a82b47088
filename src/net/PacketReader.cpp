// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/PacketReader.h"

#include "model/modStreams.h"

#include <QDateTime>

#include <utility>

namespace
{

constexpr int TextCount = 3;

} // namespace

PacketReader::Status PacketReader::feed(QByteArrayView bytes)
{
    if (m_status == Status::Incomplete) {
        m_received += bytes;
        m_status = judge();
        if (m_status != Status::Incomplete && !isTooLong())
            m_received.clear();
    }
    return m_status;
}

Packet PacketReader::takePacket()
{
    return std::exchange(m_packet, {});
}

PacketReader::Status PacketReader::judge()
{
    if (m_received.size() < qsizetype(sizeof(qint32)))
        return Status::Incomplete;
    if (!m_length) {
        qsizetype position = 0;
        const qint32 length = modStreams::ReadLong(position, m_received).value();
        if (length < SmallestPacket || length > LargestPacket)
            return Status::Bad;
        m_length = length;
    }
    if (isTooLong() || !hasSoundLengths())
        return Status::Bad;
    if (m_received.size() < *m_length)
        return Status::Incomplete;
    return decode() ? Status::Packet : Status::Bad;
}

/// Looks at those lengths of texts that have arrived: each text and what must follow it have to fit.
bool PacketReader::hasSoundLengths() const
{
    qsizetype position = sizeof(qint32);
    for (int following = TextCount - 1; following >= 0; --following) {
        const auto length = modStreams::ReadLong(position, m_received);
        if (!length)
            return true;
        const qsizetype room = *m_length - position - following * qsizetype(sizeof(qint32));
        if (length.value() < 0 || length.value() > room)
            return false;
        position += length.value();
    }
    return true;
}

bool PacketReader::decode()
{
    qsizetype position = sizeof(qint32);
    Packet packet;
    for (QString *const text : {&packet.version, &packet.identity, &packet.senderName}) {
        auto read = modStreams::ReadString(position, m_received);
        if (!read)
            return false;
        *text = std::move(read).value();
    }
    // A record that cannot be decoded is found here, while its sender still waits for the answer.
    if (!modStreams::DecodeReceivedRecord(m_received, position, {}, {}, {}, {}))
        return false;
    packet.record = m_received.sliced(position);
    m_packet = std::move(packet);
    return true;
}
