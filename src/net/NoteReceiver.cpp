// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/NoteReceiver.h"

#include "net/IncomingExchange.h"
#include "net/SenderPolicy.h"
#include "net/addresses.h"

#include <QNetworkProxy>
#include <QTcpSocket>

#include <algorithm>
#include <limits>

namespace
{

/// Of what a peer sends before its turn.
constexpr qint64 ReadAhead = 64 * 1024;
/// After the system had no means left to accept a connection.
constexpr std::chrono::seconds RecoveryTime(1);

} // namespace

NoteReceiver::NoteReceiver(SenderPolicy &policy, ReceiverLimits limits, QObject *parent)
    : QObject(parent), m_policy(policy), m_limits(limits), m_pace(limits.burst, limits.interval)
{
    // The server keeps one connection at hand and lets the others wait with the system, until it is taken from it.
    m_server.setMaxPendingConnections(1);
    m_server.setProxy(QNetworkProxy::NoProxy);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &NoteReceiver::serveNext);
    connect(&m_server, &QTcpServer::newConnection, this, &NoteReceiver::takePending);
    connect(&m_server, &QTcpServer::acceptError, this, &NoteReceiver::recover);
}

NoteReceiver::~NoteReceiver()
{
    close();
}

Outcome<quint16, Notice> NoteReceiver::listen(qint32 port, const QHostAddress &address)
{
    close();
    if (port == 0)
        return quint16(0);
    const bool isPort = port > 0 && port <= std::numeric_limits<quint16>::max();
    if (!isPort || !m_server.listen(address, static_cast<quint16>(port)))
        return Failure{Notice{tr("Port is in use.  Networking disabled."), tr("Error")}};
    return m_server.serverPort();
}

void NoteReceiver::close()
{
    m_server.close();
    m_turn.stop();
    delete m_served;
    while (!m_waiting.empty())
        drop(m_waiting.front().socket);
}

void NoteReceiver::takePending()
{
    while (m_server.hasPendingConnections() && qsizetype(m_waiting.size()) + 1 < m_limits.mostWaiting)
        queue(m_server.nextPendingConnection());
    serveNext();
}

void NoteReceiver::queue(QTcpSocket *socket)
{
    socket->setParent(this);
    socket->setReadBufferSize(ReadAhead);
    const QHostAddress peer = plainAddress(socket->peerAddress());
    m_waiting.push_back({socket, peer});
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
        drop(socket);
        takePending();
    });
    if (socket->state() != QAbstractSocket::ConnectedState)
        return drop(socket);
    m_policy.ask(peer, socket, [this, socket](bool isAdmitted) { decide(socket, isAdmitted); });
}

void NoteReceiver::decide(QTcpSocket *socket, bool isAdmitted)
{
    if (!isAdmitted) {
        drop(socket);
        QMetaObject::invokeMethod(this, &NoteReceiver::takePending, Qt::QueuedConnection);
        return;
    }
    for (Waiting &waiting : m_waiting)
        waiting.isAdmitted = waiting.isAdmitted || waiting.socket == socket;
    serveNext();
}

void NoteReceiver::drop(QTcpSocket *socket)
{
    m_waiting.remove_if([socket](const Waiting &waiting) { return waiting.socket == socket; });
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
}

/// In the order of their coming, but those whose turn has not come let the others pass.
void NoteReceiver::serveNext()
{
    m_turn.stop();
    if (m_served || m_isDelivering)
        return;
    const SenderPace::Time now = std::chrono::steady_clock::now();
    std::optional<SenderPace::Duration> soonest;
    for (auto waiting = m_waiting.begin(); waiting != m_waiting.end(); ++waiting) {
        if (!waiting->isAdmitted)
            continue;
        const SenderPace::Duration delay = m_pace.delay(waiting->peer, now);
        if (delay == SenderPace::Duration::zero()) {
            if (isRoom())
                serve(waiting);
            return;
        }
        soonest = std::min(delay, soonest.value_or(delay));
    }
    if (soonest)
        m_turn.start(*soonest);
}

bool NoteReceiver::isRoom()
{
    const bool isThere = m_hasRoom();
    if (!isThere && !m_hasToldNoRoom)
        QMetaObject::invokeMethod(this, &NoteReceiver::noRoom, Qt::QueuedConnection);
    m_hasToldNoRoom = !isThere;
    return isThere;
}

void NoteReceiver::serve(std::list<Waiting>::iterator next)
{
    const QHostAddress peer = next->peer;
    QTcpSocket *const socket = next->socket;
    m_waiting.erase(next);
    socket->disconnect(this);
    m_pace.count(peer, std::chrono::steady_clock::now());
    m_served = new IncomingExchange(socket, m_limits.budget, this);
    connect(m_served, &IncomingExchange::over, this,
            [this, peer](const std::optional<Packet> &packet) { finish(packet, peer); });
    connect(m_served, &IncomingExchange::failed, this, &NoteReceiver::tellFailure);
    m_served->start();
}

/// The place is free at once; what was received is told from the event loop, before the next is served: it may have
/// taken the last room.
void NoteReceiver::finish(const std::optional<Packet> &packet, const QHostAddress &peer)
{
    m_served->deleteLater();
    m_served.clear();
    m_isDelivering = true;
    const auto deliver = [this, packet, peer] {
        const QPointer<NoteReceiver> self = this;
        if (packet)
            emit received(*packet, peer);
        if (!self)
            return;
        m_isDelivering = false;
        takePending();
    };
    QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
}

void NoteReceiver::tellFailure(const QString &description)
{
    const Notice notice{.text = tr("Server Error. Server says: %1").arg(description), .isCritical = false};
    QMetaObject::invokeMethod(
        this, [this, notice] { emit failed(notice); }, Qt::QueuedConnection);
}

/// The server has stopped accepting; what it lacked may be there again soon.
void NoteReceiver::recover()
{
    QTimer::singleShot(RecoveryTime, this, [this] { m_server.resumeAccepting(); });
}
