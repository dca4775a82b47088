// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>

/// A mail server on loopback: it says the first reply when it is connected to, and the next one to each line it hears,
/// to all of a mail's content as to one line. An empty reply is silence.
class ScriptedMailServer final : public QTcpServer
{
public:
    enum class Line
    {
        Clear,
        StartTls, ///< Encrypts behind its reply to that command.
        Tls
    };

    explicit ScriptedMailServer(QList<QByteArray> replies, Line line = Line::Clear, const QString &identity = {})
        : m_replies(std::move(replies)), m_line(line)
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("no port on loopback");
        if (line == Line::Clear)
            return;
        QFile file(identity);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no certificate");
        const QByteArray pem = file.readAll();
        m_certificate = QSslCertificate(pem);
        m_key = QSslKey(pem, QSsl::Ec);
    }

    QList<QByteArray> heard; ///< Lines without their ends; the content as one.
    bool closesWhenDone = false;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        m_socket = new QSslSocket(this);
        m_socket->setSocketDescriptor(descriptor);
        connect(m_socket, &QSslSocket::readyRead, this, &ScriptedMailServer::hear);
        m_socket->setLocalCertificate(m_certificate);
        m_socket->setPrivateKey(m_key);
        if (m_line == Line::Tls) {
            connect(m_socket, &QSslSocket::encrypted, this, &ScriptedMailServer::reply);
            m_socket->startServerEncryption();
        } else {
            reply();
        }
    }

private:
    void hear()
    {
        m_pending += m_socket->readAll();
        for (;;) {
            const QByteArray end = m_isContent ? "\r\n.\r\n" : "\r\n";
            const qsizetype at = m_pending.indexOf(end);
            if (at < 0)
                return;
            heard << m_pending.first(at);
            m_pending.remove(0, at + end.size());
            m_isContent = false;
            reply();
            if (m_line == Line::StartTls && heard.last() == "STARTTLS")
                m_socket->startServerEncryption();
        }
    }

    void reply()
    {
        if (m_replies.isEmpty()) {
            if (closesWhenDone)
                m_socket->disconnectFromHost();
            return;
        }
        const QByteArray said = m_replies.takeFirst();
        m_isContent = said.startsWith("354");
        m_socket->write(said);
        m_socket->flush();
    }

    QList<QByteArray> m_replies;
    const Line m_line;
    QSslCertificate m_certificate;
    QSslKey m_key;
    QSslSocket *m_socket = nullptr;
    QByteArray m_pending;
    bool m_isContent = false;
};
