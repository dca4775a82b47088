// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "ScriptedPeer.h"
#include "net/NoteReceiver.h"
#include "net/PacketReader.h"
#include "net/SenderPace.h"
#include "net/SenderPolicy.h"
#include "samplePackets.h"
#include "support/rows.h"

#include <QSignalSpy>
#include <QtEndian>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Senders = clsNetworkSettings::Senders;
using Status = PacketReader::Status;
using Then = Turn::Then;

namespace
{

/// Bytes with the 32-bit number at an offset replaced.
QByteArray withNumber(QByteArray bytes, qsizetype offset, qint32 number)
{
    qToLittleEndian(number, bytes.data() + offset);
    return bytes;
}

QByteArray length(qint32 number)
{
    return withNumber(QByteArray(4, '\0'), 0, number);
}

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// A sender on loopback that keeps to its script and nothing else.
struct Client
{
    Client(quint16 port, const Script &script, bool byteByByte = false) : talk(socket, script, byteByByte)
    {
        QObject::connect(&socket, &QTcpSocket::connected, &talk, [this] { hasConnected = true; });
        socket.connectToHost(QHostAddress::LocalHost, port);
    }

    bool isConnected() const { return socket.state() == QAbstractSocket::ConnectedState; }
    bool isClosed() const { return socket.state() == QAbstractSocket::UnconnectedState; }

    QTcpSocket socket;
    ScriptedTalk talk;
    bool hasConnected = false;
};

/// A receiver on loopback and what it took.
struct Listening
{
    explicit Listening(ReceiverLimits limits = {}) : receiver(policy, limits)
    {
        QObject::connect(&receiver, &NoteReceiver::received, &receiver,
                         [this](const Packet &packet) { packets << packet; });
        port = receiver.listen(freePort(), QHostAddress::LocalHost).value();
    }
    SenderPolicy policy;
    NoteReceiver receiver;
    quint16 port = 0;
    QList<Packet> packets;
};

Packet titled(const QString &name)
{
    return {u"v"_s, u"id"_s, name, sampleRecord()};
}

Script good(const Packet &packet = samplePacket())
{
    const QByteArray bytes = encodePacket(packet);
    return {{3, bytes.first(4)}, {3 + QByteArray::number(bytes.size()).size(), bytes.sliced(4)}};
}

} // namespace

/// Notes that arrive: whom they are taken from, their packets, and the talk with the sender.
class testNoteReceiver final : public QObject
{
    Q_OBJECT

private slots:
    void policy_data()
    {
        const Rows<QString, clsNetworkSettings, bool> row; // sender, settings, admitted
        const clsNetworkSettings usual;
        const clsNetworkSettings far{.FarSendersOn = true};
        const clsNetworkSettings book{.AcceptFrom = Senders::SendBook};
        const clsNetworkSettings blocked{.FarSendersOn = true,
                                         .BlockedSenders = {u"?"_s, u"192.168.1.9"_s, u"fe80::9"_s}};
        for (const QString &near :
             {u"127.0.0.1"_s, u"127.8.9.1"_s, u"::1"_s, u"10.255.0.1"_s, u"172.31.255.255"_s, u"192.168.0.1"_s,
              u"169.254.3.4"_s, u"fe80::1%eth0"_s, u"fd00::5"_s, u"::ffff:192.168.0.1"_s})
            row(u"nearby: "_s + near, near, usual, true);
        for (const QString &distant : {u"8.8.8.8"_s, u"172.32.0.1"_s, u"172.15.0.1"_s, u"192.169.0.1"_s, u"11.0.0.1"_s,
                                       u"2001:db8::1"_s, u"::ffff:8.8.8.8"_s, u"0.0.0.0"_s}) {
            row(u"far: "_s + distant, distant, usual, false);
            row(u"widened: "_s + distant, distant, far, true);
        }
        row("blocked", u"::ffff:192.168.1.9"_s, blocked, false);
        row("blocked on its link", u"fe80::9%eth0"_s, blocked, false);
        row("its neighbour", u"192.168.1.8"_s, blocked, true);
        row("nobody", u"127.0.0.1"_s, {.AcceptFrom = Senders::Nobody}, false);
        row("address in the book", u"192.168.1.7"_s, book, true);
        row("name in the book", u"127.0.0.1"_s, book, true);
        row("not in the book", u"192.168.1.6"_s, book, false);
        row("in the book, but far", u"8.8.4.4"_s, book, false);
    }

    void policy()
    {
        const auto [sender, settings, isAdmitted] = fetchRow<QString, clsNetworkSettings, bool>();
        SenderPolicy policy;
        policy.setSettings(settings);
        policy.setBookHosts([] { return QStringList{u"192.168.1.7"_s, u"localhost"_s, u"8.8.4.4"_s}; });
        QList<bool> answers;
        policy.ask(QHostAddress(sender), this, [&answers](bool answer) { answers << answer; });
        QTRY_VERIFY(!answers.isEmpty());
        QCOMPARE(answers, QList{isAdmitted});
    }

    void pace()
    {
        SenderPace pace(30, 2s);
        const QHostAddress flooder(u"192.168.1.9"_s);
        SenderPace::Time now{};
        const auto take = [&](const QHostAddress &sender, int notes) {
            for (int k = 0; k < notes; ++k) {
                QCOMPARE(pace.delay(sender, now), 0ms);
                pace.count(sender, now);
            }
        };
        take(flooder, 30);
        QCOMPARE(pace.delay(flooder, now), 2s);
        QCOMPARE(pace.delay(QHostAddress(u"192.168.1.8"_s), now), 0ms);
        QCOMPARE(pace.delay(flooder, now + 1999ms), 1ms);
        now += 2s;
        take(flooder, 1);
        QCOMPARE(pace.delay(flooder, now), 2s);
        // After a minute of rest the whole burst is there again.
        now += 60s;
        take(flooder, 30);
        QCOMPARE(pace.delay(flooder, now), 2s);
        take(QHostAddress::LocalHost, 100);
    }

    void layout()
    {
        const QByteArray record = sampleRecord();
        const QByteArray bytes = encodePacket({u"v.1"_s, u"Hi"_s, QString(), record});
        const QByteArray head("\x06\0\0\0v\0.\0001\0\x04\0\0\0H\0i\0\0\0\0\0", 22);
        QCOMPARE(bytes, length(int(bytes.size())) + head + record);
        // All texts empty.
        const Packet least{{}, {}, {}, sampleRecord({})};
        PacketReader reader;
        QCOMPARE(reader.feed(encodePacket(least)), Status::Packet);
        QCOMPARE(encodePacket(least).size(), 16 + 40);
        QCOMPARE(reader.takePacket(), least);
    }

    void everyTruncation()
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
            if (keep >= 4)
                QCOMPARE(PacketReader().feed(withNumber(bytes.first(keep), 0, qint32(keep))), Status::Bad);
        }
        QCOMPARE(pieces.status(), Status::Packet);
        QCOMPARE(pieces.takePacket(), samplePacket());
    }

    void damagedPackets_data()
    {
        const Rows<QByteArray, bool> row; // bytes, is too long
        const QByteArray good = encodePacket(samplePacket());
        const qint32 size = qint32(good.size());
        constexpr qint32 Least = std::numeric_limits<qint32>::min();
        for (const qint32 number : {Least, -1, 0, 15, qint32(LargestPacket) + 1, std::numeric_limits<qint32>::max()})
            row(u"length %1"_s.arg(number), length(number), false);
        for (const qint32 number : {-2, Least, size, size - 15, 0x7FFFFFFE}) {
            row(u"version %1"_s.arg(number), withNumber(good.first(8), 4, number), false);
            row(u"identity %1"_s.arg(number), withNumber(good.first(26), 22, number), false);
            row(u"name %1"_s.arg(number), withNumber(good.first(62), 58, number), false);
        }
        row("half a character", withNumber(good, 4, 13), false);
        row("a text of the record past the end", withNumber(good, 68 + 24, 1 << 20), false);
        row("bytes behind it", good + 'x', true);
        row("the next packet behind it", good + good, true);
    }

    void damagedPackets()
    {
        const auto [bytes, isTooLong] = fetchRow<QByteArray, bool>();
        PacketReader reader;
        QCOMPARE(reader.feed(bytes), Status::Bad);
        QCOMPARE(reader.isTooLong(), isTooLong);
        QCOMPARE(reader.feed(encodePacket(samplePacket())), Status::Bad);
    }

    void exchanges_data()
    {
        const Rows<Script, QByteArray, bool, bool> row; // script, all replies, is taken, byte by byte
        const QByteArray bytes = encodePacket(samplePacket());
        const QByteArray size = QByteArray::number(bytes.size());
        const QByteArray all = "250" + size + "300";
        const qsizetype said = 3 + size.size();

        row("good", good(), all, true, false);
        row("single bytes", {{0, bytes}}, all, true, true);
        row("in one piece, before it was ready", {{0, bytes}}, all, true, false);
        const auto fails = [&row](const QString &name, const Script &script, const QByteArray &heard) {
            row(name, script, heard, false, false);
        };
        fails(u"too long"_s, {{3, bytes + "x"}}, all);
        fails(u"two packets"_s, {{3, bytes + bytes}}, all);
        for (const qint32 number : {-1, 0, 15, int(LargestPacket) + 1, std::numeric_limits<int>::max()})
            fails(u"length %1"_s.arg(number), {{3, length(number) + "abc"}}, "250");
        fails(u"a text past the end"_s, {{3, length(40) + length(100)}}, "25040");
        fails(u"garbage for a record"_s, {{3, length(20) + QByteArray(16, '\0')}}, "25020");
        fails(u"closes at once"_s, {{0, "", Then::Close}}, {});
        fails(u"closes in the length"_s, {{3, bytes.first(2), Then::Close}}, "250");
        fails(u"closes behind the length"_s, {{3, bytes.first(4)}, {said, "", Then::Close}}, all.first(said));
        fails(u"closes before the end"_s, {{3, bytes.first(4)}, {said, bytes.sliced(4).chopped(1), Then::Close}},
              all.first(said));
        fails(u"silent"_s, {}, "250");
        fails(u"stalls in the length"_s, {{3, bytes.first(3)}}, "250");
        fails(u"stalls before the end"_s, {{3, bytes.chopped(1)}}, all.first(said));
    }

    void exchanges()
    {
        const auto [script, heard, isTaken, byteByByte] = fetchRow<Script, QByteArray, bool, bool>();
        Listening there({.budget = 150ms});
        const Client client(there.port, script, byteByByte);
        QTRY_VERIFY(client.hasConnected);
        // Whatever the first one does, the next gets its turn.
        const Client next(there.port, good(titled(u"next"_s)));
        QTRY_VERIFY(there.packets.contains(titled(u"next"_s)));
        QTRY_VERIFY(client.isClosed());
        if (!heard.isEmpty())
            QCOMPARE(client.talk.heard, heard);
        QCOMPARE(there.packets.contains(samplePacket()), isTaken);
        QCOMPARE(there.packets.size(), isTaken ? 2 : 1);
    }

    void oneAfterTheOther()
    {
        Listening there;
        Client first(there.port, {});
        QTRY_COMPARE(first.talk.heard, QByteArray("250"));
        std::vector<std::unique_ptr<Client>> others;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
            others.push_back(std::make_unique<Client>(there.port, good(titled(name))));
            QTRY_VERIFY(others.back()->isConnected());
        }
        QVERIFY(others.front()->talk.heard.isEmpty());
        first.socket.abort();
        QTRY_COMPARE(there.packets, (QList{titled(u"a"_s), titled(u"b"_s), titled(u"c"_s)}));
    }

    /// More than are let wait, and more than a burst: from this computer itself all are taken.
    void manyAtOnce()
    {
        Listening there;
        std::vector<std::unique_ptr<Client>> clients;
        for (int k = 0; k < 45; ++k)
            clients.push_back(std::make_unique<Client>(there.port, good()));
        QTRY_COMPARE(there.packets.size(), 45);
    }

    void waitingPeersThatGo()
    {
        Listening there;
        Client first(there.port, {});
        QTRY_COMPARE(first.talk.heard, QByteArray("250"));
        std::vector<std::unique_ptr<Client>> waiting;
        for (int k = 0; k < 40; ++k)
            waiting.push_back(std::make_unique<Client>(there.port, Script()));
        for (const auto &client : waiting)
            QTRY_VERIFY(client->isConnected());
        const Client last(there.port, good());
        waiting.clear();
        first.socket.abort();
        QTRY_COMPARE(there.packets.size(), 1);
    }

    void noRoom()
    {
        Listening there;
        bool hasRoom = false;
        there.receiver.setRoom([&hasRoom] { return hasRoom; });
        const QSignalSpy told(&there.receiver, &NoteReceiver::noRoom);
        const Client first(there.port, good(titled(u"a"_s)));
        const Client second(there.port, good(titled(u"b"_s)));
        QTRY_COMPARE(told.size(), 1);
        QVERIFY(first.talk.heard.isEmpty() && first.isConnected());
        hasRoom = true;
        connect(&there.receiver, &NoteReceiver::received, this, [&hasRoom] { hasRoom = false; });
        there.receiver.lookAgain();
        // The first note takes the last room.
        QTRY_COMPARE(told.size(), 2);
        QCOMPARE(there.packets, QList{titled(u"a"_s)});
        QVERIFY(second.talk.heard.isEmpty());
    }

    void refusedSenders()
    {
        Listening there;
        there.policy.setSettings({.AcceptFrom = Senders::Nobody});
        for (int k = 0; k < 40; ++k) {
            const Client client(there.port, good());
            QTRY_VERIFY(client.isClosed());
            QVERIFY(client.talk.heard.isEmpty());
        }
        there.policy.setSettings({});
        const Client client(there.port, good());
        QTRY_COMPARE(there.packets.size(), 1);
    }

    void ports()
    {
        Listening there;
        SenderPolicy policy;
        NoteReceiver other(policy);
        for (const qint32 port : {qint32(there.port), -1, 65536}) {
            const auto listening = other.listen(port, QHostAddress::LocalHost);
            QVERIFY(!listening.ok() && !other.isListening());
            QCOMPARE(listening.error(), (Notice{u"Port is in use.  Networking disabled."_s, u"Error"_s}));
        }
        QCOMPARE(other.listen(0).value(), 0);
        QVERIFY(!other.isListening());
        there.receiver.close();
        QCOMPARE(other.listen(there.port, QHostAddress::LocalHost).value(), there.port);
    }

    void closedInASlot()
    {
        SenderPolicy policy;
        const quint16 port = freePort();
        auto receiver = std::make_unique<NoteReceiver>(policy);
        QVERIFY(receiver->listen(port, QHostAddress::LocalHost).ok());
        connect(receiver.get(), &NoteReceiver::received, this, [&] { receiver.reset(); });
        const Client first(port, good());
        const Client second(port, good());
        QTRY_VERIFY(!receiver);
        QTRY_VERIFY(second.isClosed());
    }
};

QTEST_GUILESS_MAIN(testNoteReceiver)
#include "testNoteReceiver.moc"
