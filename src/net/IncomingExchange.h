// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/PacketReader.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

class QTcpSocket;

/// Serves one connection: "250", the length as soon as it is known, "300" for a whole packet. A peer that closes,
/// breaks off or sends what cannot be a packet ends it at once, and its time is limited as a whole.
class IncomingExchange final : public QObject
{
    Q_OBJECT

public:
    /// Takes the socket over.
    IncomingExchange(QTcpSocket *socket, std::chrono::milliseconds budget, QObject *parent);
    ~IncomingExchange() override;

    void start();

signals:
    /// Once; the socket is let go. Without a packet the connection ended in any other way.
    void over(const std::optional<Packet> &packet);
    /// Before the end: the connection failed on this side. A peer that closes is no failure.
    void failed(const QString &description);

private:
    void read();
    void judge(QByteArrayView bytes);
    void breakOff();
    void say(QByteArrayView reply);
    void finish(const std::optional<Packet> &packet);
    void letGo();

    QTcpSocket *m_socket;
    PacketReader m_reader;
    QTimer m_budget;
    bool m_hasSaidLength = false;
};
