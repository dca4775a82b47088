// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/NoteReceiver.h"
#include "net/NoteSender.h"
#include "net/SenderPolicy.h"
#include "samplePackets.h"

#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>
#include <QtEndian>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace
{

/// What a sender does: sends some bytes when so many bytes of replies are there.
struct Move
{
    qsizetype after = 0;
    QByteArray sends{};
    bool closes = false;
};
using Moves = QList<Move>;

QByteArray length(qint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// A sender on loopback that keeps to its moves and nothing else.
class Client final : public QObject
{
public:
    Client(quint16 port, Moves moves, bool byteByByte = false) : m_moves(std::move(moves)), m_byteByByte(byteByByte)
    {
        m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(&m_socket, &QTcpSocket::readyRead, this, &Client::go);
        connect(&m_socket, &QTcpSocket::connected, this, &Client::go);
        m_socket.connectToHost(QHostAddress::LocalHost, port);
    }

    bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    bool isClosed() const { return m_socket.state() == QAbstractSocket::UnconnectedState; }
    void abort() { m_socket.abort(); }
    QByteArray heard;
    bool hasConnected = false;

private:
    void go()
    {
        hasConnected = true;
        heard += m_socket.readAll();
        while (!m_moves.isEmpty() && m_moves.first().after <= heard.size()) {
            const Move move = m_moves.takeFirst();
            send(move.sends);
            if (move.closes)
                m_socket.disconnectFromHost();
        }
    }
    void send(const QByteArray &bytes)
    {
        const qsizetype step = m_byteByByte ? 1 : std::max<qsizetype>(1, bytes.size());
        for (qsizetype at = 0; at < bytes.size() && isConnected(); at += step) {
            m_socket.write(bytes.mid(at, step));
            m_socket.flush();
        }
    }

    QTcpSocket m_socket;
    Moves m_moves;
    const bool m_byteByByte;
};

/// A receiver on loopback and what it took.
struct Listening
{
    explicit Listening(ReceiverLimits limits = {}) : receiver(policy, limits)
    {
        QObject::connect(&receiver, &NoteReceiver::received, &receiver,
                         [this](const Packet &packet, const QHostAddress &peer) {
                             packets << packet;
                             peers << peer;
                         });
        port = receiver.listen(freePort(), QHostAddress::LocalHost).value();
    }
    SenderPolicy policy;
    NoteReceiver receiver;
    quint16 port = 0;
    QList<Packet> packets;
    QList<QHostAddress> peers;
};

Packet titled(const QString &name)
{
    return {u"v"_s, u"id"_s, name, sampleRecord()};
}

Moves good(const Packet &packet = samplePacket())
{
    const QByteArray bytes = encodePacket(packet);
    return {{3, bytes.first(4)}, {3 + QByteArray::number(bytes.size()).size(), bytes.sliced(4)}};
}

} // namespace

class testNoteReceiver final : public QObject
{
    Q_OBJECT

private slots:
    void exchanges_data();
    void exchanges();
    void oneAfterTheOther();
    void manyAtOnce();
    void waitingPeersThatGo();
    void noRoom();
    void refusedSenders();
    void ports();
    void senderAndReceiver();
    void closedInASlot();
};

void testNoteReceiver::exchanges_data()
{
    QTest::addColumn<Moves>("moves");
    QTest::addColumn<bool>("byteByByte");
    QTest::addColumn<QByteArray>("heard"); // All replies.
    QTest::addColumn<bool>("taken");
    const QByteArray bytes = encodePacket(samplePacket());
    const QByteArray size = QByteArray::number(bytes.size());
    const QByteArray all = "250" + size + "300";
    const qsizetype said = 3 + size.size();

    QTest::newRow("good") << good() << false << all << true;
    QTest::newRow("single bytes") << Moves{{0, bytes}} << true << all << true;
    QTest::newRow("in one piece, before it was ready") << Moves{{0, bytes}} << false << all << true;
    QTest::newRow("too long") << Moves{{3, bytes + "x"}} << false << all << false;
    QTest::newRow("two packets") << Moves{{3, bytes + bytes}} << false << all << false;

    for (const qint32 number : {-1, 0, 15, int(LargestPacket) + 1, std::numeric_limits<int>::max()})
        QTest::addRow("length %d", number) << Moves{{3, length(number) + "abc"}} << false << QByteArray("250") << false;
    QTest::newRow("a text past the end") << Moves{{3, length(40) + length(100)}} << false << QByteArray("25040")
                                         << false;
    QTest::newRow("garbage for a record")
        << Moves{{3, length(20) + QByteArray(16, '\0')}} << false << QByteArray("25020") << false;

    QTest::newRow("closes at once") << Moves{{0, "", true}} << false << QByteArray() << false;
    QTest::newRow("closes in the length") << Moves{{3, bytes.first(2), true}} << false << QByteArray("250") << false;
    QTest::newRow("closes behind the length")
        << Moves{{3, bytes.first(4)}, {said, "", true}} << false << all.first(said) << false;
    QTest::newRow("closes before the end")
        << Moves{{3, bytes.first(4)}, {said, bytes.sliced(4).chopped(1), true}} << false << all.first(said) << false;

    QTest::newRow("silent") << Moves{} << false << QByteArray("250") << false;
    QTest::newRow("stalls in the length") << Moves{{3, bytes.first(3)}} << false << QByteArray("250") << false;
    QTest::newRow("stalls before the end") << Moves{{3, bytes.chopped(1)}} << false << all.first(said) << false;
}

void testNoteReceiver::exchanges()
{
    QFETCH(Moves, moves);
    QFETCH(bool, byteByByte);
    QFETCH(QByteArray, heard);
    QFETCH(bool, taken);
    Listening there({.budget = 150ms});
    Client client(there.port, moves, byteByByte);
    QTRY_VERIFY(client.hasConnected);
    // Whatever the first one does, the next gets its turn.
    Client next(there.port, good(titled(u"next"_s)));
    QTRY_VERIFY(there.packets.contains(titled(u"next"_s)));
    QTRY_VERIFY(client.isClosed());
    if (!heard.isEmpty())
        QCOMPARE(client.heard, heard);
    QCOMPARE(there.packets.contains(samplePacket()), taken);
    QCOMPARE(there.packets.size(), taken ? 2 : 1);
}

void testNoteReceiver::oneAfterTheOther()
{
    Listening there;
    Client first(there.port, {});
    QTRY_COMPARE(first.heard, QByteArray("250"));
    std::vector<std::unique_ptr<Client>> others;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
        others.push_back(std::make_unique<Client>(there.port, good(titled(name))));
        QTRY_VERIFY(others.back()->isConnected());
    }
    QVERIFY(others.front()->heard.isEmpty());
    first.abort();
    QTRY_COMPARE(there.packets, (QList{titled(u"a"_s), titled(u"b"_s), titled(u"c"_s)}));
}

/// More than are let wait, and more than a burst: from this computer itself all are taken.
void testNoteReceiver::manyAtOnce()
{
    Listening there;
    std::vector<std::unique_ptr<Client>> clients;
    for (int k = 0; k < 45; ++k)
        clients.push_back(std::make_unique<Client>(there.port, good()));
    QTRY_COMPARE(there.packets.size(), 45);
}

void testNoteReceiver::waitingPeersThatGo()
{
    Listening there;
    Client first(there.port, {});
    QTRY_COMPARE(first.heard, QByteArray("250"));
    std::vector<std::unique_ptr<Client>> waiting;
    for (int k = 0; k < 40; ++k)
        waiting.push_back(std::make_unique<Client>(there.port, Moves()));
    for (const auto &client : waiting)
        QTRY_VERIFY(client->isConnected());
    Client last(there.port, good());
    waiting.clear();
    first.abort();
    QTRY_COMPARE(there.packets.size(), 1);
}

void testNoteReceiver::noRoom()
{
    Listening there;
    bool hasRoom = false;
    there.receiver.setRoom([&hasRoom] { return hasRoom; });
    QSignalSpy told(&there.receiver, &NoteReceiver::noRoom);
    Client first(there.port, good(titled(u"a"_s)));
    Client second(there.port, good(titled(u"b"_s)));
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(first.heard.isEmpty() && first.isConnected());
    hasRoom = true;
    connect(&there.receiver, &NoteReceiver::received, this, [&hasRoom] { hasRoom = false; });
    there.receiver.lookAgain();
    // The first note takes the last room.
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(there.packets, QList{titled(u"a"_s)});
    QVERIFY(second.heard.isEmpty());
}

void testNoteReceiver::refusedSenders()
{
    Listening there;
    there.policy.setSettings({.AcceptFrom = clsNetworkSettings::Senders::Nobody});
    for (int k = 0; k < 40; ++k) {
        Client client(there.port, good());
        QTRY_VERIFY(client.isClosed());
        QVERIFY(client.heard.isEmpty());
    }
    there.policy.setSettings({});
    Client client(there.port, good());
    QTRY_COMPARE(there.packets.size(), 1);
}

void testNoteReceiver::ports()
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

void testNoteReceiver::senderAndReceiver()
{
    Listening there;
    NoteSender sender;
    QSignalSpy finished(&sender, &NoteSender::finished);
    const Packet packet = samplePacket(QString(2'000'000, u'\u20AC'));
    sender.start(encodePacket(packet), {u"localhost"_s, {}, there.port});
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().value<ExchangeResult>().end, ExchangeResult::End::Done);
    QTRY_COMPARE(there.packets.size(), 1);
    QVERIFY(there.packets.first() == packet);
    QCOMPARE(there.peers.first(), QHostAddress(u"127.0.0.1"_s));
}

void testNoteReceiver::closedInASlot()
{
    SenderPolicy policy;
    const quint16 port = freePort();
    auto receiver = std::make_unique<NoteReceiver>(policy);
    QVERIFY(receiver->listen(port, QHostAddress::LocalHost).ok());
    connect(receiver.get(), &NoteReceiver::received, this, [&] { receiver.reset(); });
    Client first(port, good());
    Client second(port, good());
    QTRY_VERIFY(!receiver);
    QTRY_VERIFY(second.isClosed());
}

QTEST_GUILESS_MAIN(testNoteReceiver)
#include "testNoteReceiver.moc"
