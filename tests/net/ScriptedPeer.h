// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <memory>

/// What a peer does once it has received so many bytes of its connection.
struct Turn
{
    enum class Then
    {
        GoOn,
        Close,
        Break ///< As a process that is killed.
    };
    qsizetype after = 0;
    QByteArray says{};
    Then then = Then::GoOn;
};
using Script = QList<Turn>;

/// A peer on loopback that plays a script to each of its connections, and keeps what it was told.
class ScriptedPeer final : public QObject
{
public:
    explicit ScriptedPeer(Script script, bool byteByByte = false)
        : m_script(std::move(script)), m_byteByByte(byteByByte)
    {
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no port on loopback");
        connect(&m_server, &QTcpServer::newConnection, this, &ScriptedPeer::accept);
    }

    quint16 port() const { return m_server.serverPort(); }
    void stopListening() { m_server.close(); }
    QList<QByteArray> received; ///< Of each connection.

private:
    void accept()
    {
        QTcpSocket *const socket = m_server.nextPendingConnection();
        socket->setParent(this);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const qsizetype number = received.size();
        received.append(QByteArray());
        auto left = std::make_shared<Script>(m_script);
        const auto hear = [this, socket, number, left] {
            do {
                received[number] += socket->readAll();
                play(*socket, received.at(number).size(), *left);
                // What came while it spoke is not told once more.
            } while (socket->bytesAvailable() > 0);
        };
        connect(socket, &QTcpSocket::readyRead, this, hear);
        hear();
    }

    void play(QTcpSocket &socket, qsizetype heard, Script &left)
    {
        while (!left.isEmpty() && left.first().after <= heard) {
            const Turn turn = left.takeFirst();
            say(socket, turn.says);
            if (turn.then == Turn::Then::Close)
                socket.disconnectFromHost();
            else if (turn.then == Turn::Then::Break)
                socket.abort();
        }
    }

    /// Each byte is on its way before the next: it arrives alone.
    void say(QTcpSocket &socket, const QByteArray &bytes)
    {
        const qsizetype step = m_byteByByte ? 1 : std::max<qsizetype>(1, bytes.size());
        for (qsizetype at = 0; at < bytes.size(); at += step) {
            socket.write(bytes.mid(at, step));
            socket.flush();
            if (m_byteByByte)
                QTest::qWait(0);
        }
    }

    QTcpServer m_server;
    const Script m_script;
    const bool m_byteByByte;
};
