// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <functional>

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

/// Plays a script on a connection and keeps what it was told.
class ScriptedTalk final : public QObject
{
public:
    ScriptedTalk(QTcpSocket &socket, Script script, bool byteByByte)
        : m_socket(socket), m_left(std::move(script)), m_byteByByte(byteByByte)
    {
        m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(&m_socket, &QTcpSocket::connected, this, &ScriptedTalk::hear);
        connect(&m_socket, &QTcpSocket::readyRead, this, &ScriptedTalk::hear);
    }

    void hear()
    {
        do {
            heard += m_socket.readAll();
            if (onHeard)
                onHeard();
            play();
            // What came while it spoke is not told once more.
        } while (m_socket.bytesAvailable() > 0);
    }

    QByteArray heard;
    std::function<void()> onHeard;

private:
    void play()
    {
        while (!m_left.isEmpty() && m_left.first().after <= heard.size()) {
            const Turn turn = m_left.takeFirst();
            say(turn.says);
            if (turn.then == Turn::Then::Close)
                m_socket.disconnectFromHost();
            else if (turn.then == Turn::Then::Break)
                m_socket.abort();
        }
    }

    /// Each byte is on its way before the next: it arrives alone.
    void say(const QByteArray &bytes)
    {
        const qsizetype step = m_byteByByte ? 1 : std::max<qsizetype>(1, bytes.size());
        for (qsizetype at = 0; at < bytes.size() && m_socket.state() == QAbstractSocket::ConnectedState; at += step) {
            m_socket.write(bytes.mid(at, step));
            m_socket.flush();
            if (m_byteByByte)
                QTest::qWait(0);
        }
    }

    QTcpSocket &m_socket;
    Script m_left;
    const bool m_byteByByte;
};

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
        auto *const talk = new ScriptedTalk(*socket, m_script, m_byteByByte);
        socket->setParent(this);
        talk->setParent(socket);
        talk->onHeard = [this, talk, number = received.size()] { received[number] = talk->heard; };
        received.append(QByteArray());
        talk->hear();
    }

    QTcpServer m_server;
    const Script m_script;
    const bool m_byteByByte;
};
