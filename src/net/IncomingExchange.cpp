// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/IncomingExchange.h"

#include "net/replyCodes.h"

#include <QTcpSocket>

#include <utility>

namespace
{

constexpr qint64 BlockSize = 64 * 1024;

} // namespace

IncomingExchange::IncomingExchange(QTcpSocket *socket, std::chrono::milliseconds budget, QObject *parent)
    : QObject(parent), m_socket(socket)
{
    m_budget.setSingleShot(true);
    m_budget.setTimerType(Qt::PreciseTimer);
    m_budget.setInterval(budget);
    connect(&m_budget, &QTimer::timeout, this, [this] { finish(std::nullopt); });
    connect(m_socket, &QTcpSocket::readyRead, this, &IncomingExchange::read);
    connect(m_socket, &QTcpSocket::errorOccurred, this, &IncomingExchange::breakOff);
}

IncomingExchange::~IncomingExchange()
{
    letGo();
}

void IncomingExchange::start()
{
    m_budget.start();
    say(replyCodes::Ready);
    read();
}

void IncomingExchange::read()
{
    while (m_socket && m_socket->bytesAvailable() > 0)
        judge(m_socket->read(BlockSize));
}

void IncomingExchange::judge(QByteArrayView bytes)
{
    const PacketReader::Status status = m_reader.feed(bytes);
    if (m_reader.claimedLength() && !std::exchange(m_hasSaidLength, true))
        say(QByteArray::number(*m_reader.claimedLength()));
    if (status == PacketReader::Status::Packet || m_reader.isTooLong())
        say(replyCodes::Received);
    if (status == PacketReader::Status::Packet)
        finish(m_reader.takePacket());
    else if (status == PacketReader::Status::Bad)
        finish(std::nullopt);
}

void IncomingExchange::breakOff()
{
    const bool isPeersDoing = m_socket->error() == QAbstractSocket::RemoteHostClosedError;
    const QString description = m_socket->errorString();
    read();
    if (!m_socket)
        return;
    finish(std::nullopt);
    if (!isPeersDoing)
        emit failed(description);
}

/// A connection that turns out broken has ended when this returns.
void IncomingExchange::say(QByteArrayView reply)
{
    if (!m_socket)
        return;
    m_socket->write(reply.data(), reply.size());
    m_socket->flush();
}

void IncomingExchange::finish(const std::optional<Packet> &packet)
{
    if (!m_socket)
        return;
    m_budget.stop();
    letGo();
    emit over(packet);
}

/// The socket goes later: it may be its own slot that we are in.
void IncomingExchange::letGo()
{
    QTcpSocket *const left = std::exchange(m_socket, nullptr);
    if (!left)
        return;
    left->disconnect(this);
    // What is left unread would make the system take back the last reply.
    left->readAll();
    left->disconnectFromHost();
    left->deleteLater();
}
