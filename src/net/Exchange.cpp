// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/Exchange.h"

#include <QNetworkProxy>
#include <QPointer>
#include <QTcpSocket>

namespace
{

constexpr qsizetype BlockSize = 64 * 1024;
/// A server that talks without end fills no more than this.
constexpr qint64 ReadAhead = 64 * 1024;

void prepare(QTimer &timer, std::chrono::milliseconds duration)
{
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(duration);
}

} // namespace

Exchange::Exchange(ExchangeTimes times, Labels labels, QObject *parent)
    : QObject(parent), m_times(times), m_labels(std::move(labels))
{
    prepare(m_overallTimer, times.overall);
    prepare(m_waitTimer, times.wait);
    connect(&m_overallTimer, &QTimer::timeout, this, &Exchange::runOut);
    connect(&m_waitTimer, &QTimer::timeout, this, [this] { fail(waitFailure()); });
}

Exchange::~Exchange()
{
    letGo(ExchangeResult::End::Canceled);
}

void Exchange::stop()
{
    if (m_phase == Phase::Talking && tellStep(m_labels.stopped))
        end({ExchangeResult::End::Canceled});
}

void Exchange::open(std::unique_ptr<QTcpSocket> socket, const Place &place, qsizetype length, const QString &label)
{
    m_phase = Phase::Talking;
    m_outgoing.clear();
    m_handedOver = m_taken = 0;
    m_socket = std::move(socket);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(ReadAhead);
    connect(m_socket.get(), &QTcpSocket::readyRead, this, &Exchange::read);
    connect(m_socket.get(), &QTcpSocket::bytesWritten, this, &Exchange::countTaken);
    connect(m_socket.get(), &QTcpSocket::errorOccurred, this, &Exchange::breakOff);
    m_overallTimer.start();
    startWait();
    emit lengthKnown(static_cast<int>(length));
    setProgress(0);
    if (tellStep(label))
        connectSocket(*m_socket, place);
}

void Exchange::connectSocket(QTcpSocket &socket, const Place &place)
{
    socket.connectToHost(place.host, place.port);
}

void Exchange::write(const QByteArray &bytes)
{
    m_outgoing = m_outgoing.sliced(m_handedOver) + bytes;
    m_handedOver = 0;
    pump();
}

/// Hands over a block at a time, so that what the socket holds stays small and the progress tells what has left.
void Exchange::pump()
{
    if (m_socket->bytesToWrite() >= BlockSize || m_handedOver == m_outgoing.size())
        return;
    const qsizetype count = std::min(BlockSize, m_outgoing.size() - m_handedOver);
    const char *const from = m_outgoing.constData() + m_handedOver;
    m_handedOver += count;
    m_socket->write(from, count);
}

bool Exchange::isAllTaken() const
{
    return m_handedOver == m_outgoing.size() && m_socket->bytesToWrite() == 0;
}

void Exchange::countTaken(qint64 bytes)
{
    m_taken += bytes;
    const QPointer<Exchange> self = this;
    taken(m_taken);
    if (!self || m_phase != Phase::Talking)
        return;
    pump();
    if (m_phase == Phase::Talking && isAllTaken())
        allTaken();
}

void Exchange::read()
{
    if (const QByteArray bytes = m_socket->readAll(); !bytes.isEmpty())
        arrived(bytes);
}

/// What the server said before it broke off counts.
void Exchange::breakOff()
{
    const QString description = m_socket->errorString();
    const QPointer<Exchange> self = this;
    while (self && m_phase == Phase::Talking && m_socket->bytesAvailable() > 0)
        read();
    if (self && m_phase == Phase::Talking)
        brokenOff(description);
}

void Exchange::runOut()
{
    const bool isWaitOver = m_waitTimer.isActive() && m_waitTimer.remainingTimeAsDuration() <= m_times.together;
    fail(isWaitOver ? waitFailure() : overallFailure());
}

void Exchange::startWait()
{
    m_waitTimer.start();
}

void Exchange::stopWait()
{
    m_waitTimer.stop();
}

void Exchange::setProgress(qsizetype bytes)
{
    emit progressed(static_cast<int>(bytes));
}

bool Exchange::tellStep(const QString &label)
{
    const QPointer<Exchange> self = this;
    emit stepChanged(label);
    return self && m_phase == Phase::Talking;
}

void Exchange::succeed()
{
    end({ExchangeResult::End::Done});
}

void Exchange::fail(const Notice &notice)
{
    if (m_phase == Phase::Talking)
        end({ExchangeResult::End::Failed, notice});
}

void Exchange::refuse(const Notice &notice)
{
    m_phase = Phase::Talking;
    fail(notice);
}

void Exchange::end(ExchangeResult result)
{
    m_phase = Phase::Telling;
    m_overallTimer.stop();
    m_waitTimer.stop();
    letGo(result.end);
    QMetaObject::invokeMethod(
        this,
        [this, result] {
            m_phase = Phase::Idle;
            emit finished(result);
        },
        Qt::QueuedConnection);
    const QPointer<Exchange> self = this;
    emit stepChanged(result.end == ExchangeResult::End::Done ? m_labels.done : m_labels.canceled);
    if (self)
        setProgress(0);
}

/// The socket goes later: it may be its own slot that we are in.
void Exchange::letGo(ExchangeResult::End end)
{
    if (!m_socket)
        return;
    m_outgoing.clear();
    m_handedOver = 0;
    QTcpSocket *const left = m_socket.release();
    left->disconnect(this);
    left->deleteLater();
    if (end == ExchangeResult::End::Done)
        left->disconnectFromHost();
    else
        left->abort();
}
