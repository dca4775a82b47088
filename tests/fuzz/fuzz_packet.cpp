// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/PacketReader.h"
#include "require.h"

#include <QtEndian>

using Status = PacketReader::Status;

namespace
{

/// However a packet is cut into pieces, it is read as the same; bytes behind it are an error only in the whole.
void read(QByteArrayView bytes)
{
    PacketReader whole;
    const Status status = whole.feed(bytes);
    PacketReader pieces;
    for (qsizetype at = 0; at < bytes.size(); ++at)
        pieces.feed(bytes.sliced(at, 1));
    require(pieces.claimedLength() == whole.claimedLength());
    require(whole.isTooLong() || pieces.status() == status);
    if (status != Status::Packet)
        return;
    const Packet packet = whole.takePacket();
    require(packet == pieces.takePacket());
    require(encodePacket(packet) == bytes);
}

} // namespace

/// The bytes as they are, and with their true length in front.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes = bytesOf(data, size).toByteArray();
    read(bytes);
    bytes.prepend(4, '\0');
    qToLittleEndian(qint32(bytes.size()), bytes.data());
    read(bytes);
    return 0;
}
