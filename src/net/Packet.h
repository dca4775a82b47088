// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// One note on its way between two computers. All integers on the wire are 32-bit little-endian, all texts UTF-16LE
/// behind their length in bytes: the length of the whole packet, these three texts, then the record.
struct Packet
{
    QString version;    ///< Of the sending program; nothing is decided by it.
    QString identity;   ///< The sending computer as it calls itself: a claim.
    QString senderName; ///< The sending person as he calls himself: a claim, may be empty.
    QByteArray record;  ///< The wire form of the note.

    bool operator==(const Packet &) const = default;
};

inline constexpr qsizetype SmallestPacket = 16;
inline constexpr qsizetype LargestPacket = 8 * 1024 * 1024; ///< Nobody who keeps to this program takes more.

/// The bytes that go over the wire. A packet above LargestPacket is made too: who sends it looks at its size.
QByteArray encodePacket(const Packet &packet);
