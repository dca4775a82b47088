// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/NoteSender.h"

#include "net/Packet.h"
#include "net/replyCodes.h"

#include <QTcpSocket>

#include <limits>

namespace
{

constexpr qsizetype LengthBytes = sizeof(qint32);

bool isPort(qint32 port)
{
    return port > 0 && port <= std::numeric_limits<quint16>::max();
}

} // namespace

NoteSender::NoteSender(ExchangeTimes times, QObject *parent)
    : Exchange(times, {tr("Send canceled"), tr("Send canceled."), tr("Message sent.")}, parent)
{}

void NoteSender::start(const QByteArray &packet, const SendTarget &target)
{
    if (isRunning())
        return;
    const qint32 port = target.port == 0 ? SendTarget::DefaultPort : target.port;
    if (packet.size() > LargestPacket)
        return refuse({.text = tr("This note is too long to be sent.")});
    if (!isPort(port))
        return refuse(socketFailure(tr("There is no port %1").arg(port)));
    m_packet = packet;
    m_port = static_cast<quint16>(port);
    m_reply.clear();
    m_stage = Stage::WaitingForReady;
    open(std::make_unique<QTcpSocket>(), {target.host, m_port}, packet.size(), tr("Connecting ... "));
}

void NoteSender::arrived(const QByteArray &bytes)
{
    m_reply.add(bytes);
    advance();
}

void NoteSender::advance()
{
    switch (m_stage) {
    case Stage::WaitingForReady:
        if (m_reply.takeCode(replyCodes::Ready))
            sendLength();
        break;
    case Stage::WaitingForLength:
        compareLength();
        break;
    case Stage::WaitingForReceived:
        if (m_reply.takeCode(replyCodes::Received))
            succeed();
        break;
    case Stage::Disagreed:
    case Stage::SendingRest:
        break;
    }
}

void NoteSender::sendLength()
{
    m_stage = Stage::WaitingForLength;
    stopWait();
    if (!tellStep(tr("Connected ... ")))
        return;
    startWait();
    write(m_packet.first(LengthBytes));
    advance();
}

void NoteSender::compareLength()
{
    switch (m_reply.takeNumber(QByteArray::number(m_packet.size()), replyCodes::Received)) {
    case ReplyDigits::Match::Undecided:
        break;
    case ReplyDigits::Match::Yes:
        sendRest();
        break;
    case ReplyDigits::Match::No:
        m_stage = Stage::Disagreed;
        startWait();
        break;
    }
}

void NoteSender::sendRest()
{
    m_stage = Stage::SendingRest;
    stopWait();
    if (tellStep(tr("Sending to port %1 ...").arg(m_port)))
        write(m_packet.sliced(LengthBytes));
}

void NoteSender::allTaken()
{
    if (m_stage != Stage::SendingRest)
        return;
    m_stage = Stage::WaitingForReceived;
    startWait();
    advance();
}

Notice NoteSender::waitFailure() const
{
    return {tr("An error has occured.  Message not sent"), tr("Message not sent (200)")};
}

Notice NoteSender::overallFailure() const
{
    return {tr("An error has occured.  Message not sent"), tr("Message not sent (300)")};
}

Notice NoteSender::socketFailure(const QString &description) const
{
    return {.text = tr("An error has occured.  Server said: \n%1\nPlease try again later.").arg(description),
            .isCritical = false};
}
