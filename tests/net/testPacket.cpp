// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/PacketReader.h"
#include "samplePackets.h"

#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using Status = PacketReader::Status;

namespace
{

/// A packet with the 32-bit number at an offset replaced.
QByteArray withNumber(QByteArray bytes, qsizetype offset, qint32 number)
{
    qToLittleEndian(number, bytes.data() + offset);
    return bytes;
}

} // namespace

class testPacket final : public QObject
{
    Q_OBJECT

private slots:
    void layout();
    void emptyTexts();
    void everyTruncation();
    void damage_data();
    void damage();
};

void testPacket::layout()
{
    const QByteArray record = sampleRecord();
    const QByteArray bytes = encodePacket({u"v.1"_s, u"Hi"_s, QString(), record});
    const QByteArray head("\x06\0\0\0v\0.\0001\0\x04\0\0\0H\0i\0\0\0\0\0", 22);
    QCOMPARE(qFromLittleEndian<qint32>(bytes.data()), qint32(bytes.size()));
    QCOMPARE(bytes.sliced(4), head + record);
}

void testPacket::emptyTexts()
{
    const QByteArray bytes = encodePacket({{}, {}, {}, sampleRecord({})});
    QCOMPARE(bytes.size(), 16 + 40);
    PacketReader reader;
    QCOMPARE(reader.feed(bytes), Status::Packet);
    QCOMPARE(reader.takePacket(), (Packet{QString(), QString(), QString(), sampleRecord({})}));
}

void testPacket::everyTruncation()
{
    const QByteArray bytes = encodePacket(samplePacket());
    PacketReader pieces;
    for (qsizetype keep = 0; keep < bytes.size(); ++keep) {
        PacketReader whole;
        QCOMPARE(whole.feed(bytes.first(keep)), Status::Incomplete);
        QCOMPARE(pieces.status(), Status::Incomplete);
        QCOMPARE(whole.claimedLength().has_value(), keep >= 4);
        pieces.feed(bytes.sliced(keep, 1));
        // The same bytes as a packet of their own: something in them runs past its end.
        if (keep >= 4) {
            PacketReader cut;
            QCOMPARE(cut.feed(withNumber(bytes.first(keep), 0, qint32(keep))), Status::Bad);
        }
    }
    QCOMPARE(pieces.status(), Status::Packet);
    QCOMPARE(pieces.takePacket(), samplePacket());
}

void testPacket::damage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("tooLong");
    const QByteArray good = encodePacket(samplePacket());
    const qint32 size = qint32(good.size());
    for (const qint32 length :
         {std::numeric_limits<qint32>::min(), -1, 0, 15, qint32(LargestPacket) + 1, std::numeric_limits<qint32>::max()})
        QTest::addRow("length %d", length) << withNumber(good.first(4), 0, length) << false;
    for (const qint32 length : {-2, std::numeric_limits<qint32>::min(), size, size - 15, 0x7FFFFFFE}) {
        QTest::addRow("version %d", length) << withNumber(good.first(8), 4, length) << false;
        QTest::addRow("identity %d", length) << withNumber(good.first(26), 22, length) << false;
        QTest::addRow("name %d", length) << withNumber(good.first(62), 58, length) << false;
    }
    QTest::newRow("half a character") << withNumber(good, 4, 13) << false;
    QTest::newRow("a text of the record past the end") << withNumber(good, 68 + 24, 1 << 20) << false;
    QTest::newRow("bytes behind it") << good + 'x' << true;
    QTest::newRow("the next packet behind it") << good + good << true;
}

void testPacket::damage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, tooLong);
    PacketReader reader;
    QCOMPARE(reader.feed(bytes), Status::Bad);
    QCOMPARE(reader.isTooLong(), tooLong);
    QCOMPARE(reader.feed(encodePacket(samplePacket())), Status::Bad);
}

QTEST_APPLESS_MAIN(testPacket)
#include "testPacket.moc"
