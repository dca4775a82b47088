// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "net/Notice.h"
#include "net/Packet.h"
#include "net/SenderPace.h"

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTimer>

#include <functional>
#include <list>
#include <optional>

class IncomingExchange;
class SenderPolicy;

/// What strangers can have of this computer's time.
struct ReceiverLimits
{
    std::chrono::milliseconds budget = std::chrono::seconds(30);  ///< Of one connection as a whole.
    int burst = 30;                                               ///< Notes of one address that are taken at once.
    std::chrono::milliseconds interval = std::chrono::seconds(2); ///< Of the notes behind the burst.
    qsizetype mostWaiting = 16;
};

/// Takes notes that other computers send: one connection at a time, the others in their order. While nobody connects it
/// wakes nobody.
class NoteReceiver final : public QObject
{
    Q_OBJECT

public:
    /// The policy outlives the receiver.
    explicit NoteReceiver(SenderPolicy &policy, ReceiverLimits limits = {}, QObject *parent = nullptr);
    ~NoteReceiver() override;

    /// Asked before each connection is served. While it says no, connections wait and nothing is taken from them.
    void setRoom(std::function<bool()> hasRoom) { m_hasRoom = std::move(hasRoom); }
    /// There may be room again.
    void lookAgain() { serveNext(); }

    /// The port that is listened on, 0 for a port of 0: nothing is received then. The failure is the box to be shown.
    Outcome<quint16, Notice> listen(qint32 port, const QHostAddress &address = QHostAddress::Any);
    /// Drops every connection.
    void close();
    bool isListening() const { return m_server.isListening(); }

signals:
    /// From the event loop, when the exchange is over and the sender knows that it was received. The address is the
    /// true one of the connection, an IPv4 address as such.
    void received(const Packet &packet, const QHostAddress &peer);
    /// Somebody wants to send and there is no room: once, until there was room again.
    void noRoom();
    /// The network failed on this side.
    void failed(const Notice &notice);

private:
    /// Its peer sees a connection that nobody answers yet.
    struct Waiting
    {
        QTcpSocket *socket;
        QHostAddress peer;
        bool isAdmitted = false;
    };

    void takePending();
    void queue(QTcpSocket *socket);
    void decide(QTcpSocket *socket, bool isAdmitted);
    void drop(QTcpSocket *socket);
    void serveNext();
    bool isRoom();
    void serve(std::list<Waiting>::iterator next);
    void finish(const std::optional<Packet> &packet, const QHostAddress &peer);
    void tellFailure(const QString &description);
    void recover();

    SenderPolicy &m_policy;
    const ReceiverLimits m_limits;
    std::function<bool()> m_hasRoom = [] { return true; };
    QTcpServer m_server;
    SenderPace m_pace;
    std::list<Waiting> m_waiting;
    QPointer<IncomingExchange> m_served;
    QTimer m_turn; ///< Runs while only addresses wait whose turn has not come.
    bool m_isDelivering = false;
    bool m_hasToldNoRoom = false;
};
