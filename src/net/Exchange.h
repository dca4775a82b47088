// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Notice.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

class QTcpSocket;

/// How long a talk may last.
struct ExchangeTimes
{
    std::chrono::milliseconds overall; ///< From the connecting on.
    std::chrono::milliseconds wait;    ///< For each single reply.
    /// Where both end within this time of each other, it is the wait that is told.
    std::chrono::milliseconds together = std::chrono::seconds(1);
};

/// How a talk ended.
struct ExchangeResult
{
    enum class End
    {
        Done,
        Canceled,
        Failed
    };
    End end = End::Done;
    Notice notice{}; ///< Of a failure: the one box to be shown.
};

/// A talk with one server as its client: sockets, timers and progress of whoever speaks a protocol. Signals tell how
/// far it is; `finished` comes exactly once for each start, from the event loop and last of all: timers are stopped
/// and the socket is let go by then, so a box may be shown and the talk deleted or started again in answer.
class Exchange : public QObject
{
    Q_OBJECT

public:
    ~Exchange() override;

    bool isRunning() const { return m_phase != Phase::Idle; }
    /// Ends the talk as canceled, whatever its stage.
    void stop();

signals:
    void lengthKnown(int bytes);
    /// Bytes of that length that the socket has taken; 0 when the talk has ended.
    void progressed(int bytes);
    void stepChanged(const QString &label);
    void finished(const ExchangeResult &result);

protected:
    struct Labels
    {
        QString stopped;  ///< At once when it is stopped.
        QString canceled; ///< At the end of a talk that has not succeeded.
        QString done;
    };
    struct Place
    {
        QString host;
        quint16 port = 0;
    };

    Exchange(ExchangeTimes times, Labels labels, QObject *parent);

    /// Starts the overall time; ends as failed at once where there is no port to connect to.
    void open(std::unique_ptr<QTcpSocket> socket, const Place &place, qsizetype length, const QString &label);
    virtual void connectSocket(QTcpSocket &socket, const Place &place);
    /// What the server says, in pieces of any size.
    virtual void arrived(const QByteArray &bytes) = 0;
    /// The socket has taken all that was written.
    virtual void allTaken() {}
    /// Bytes that count in the progress, `sum` of them since the start.
    virtual void taken(qsizetype sum) { setProgress(sum); }
    /// The connection has ended, by the server or by a fault.
    virtual void brokenOff(const QString &description) { fail(socketFailure(description)); }
    virtual Notice waitFailure() const = 0;
    virtual Notice overallFailure() const = 0;
    virtual Notice socketFailure(const QString &description) const = 0;

    QTcpSocket *socket() const { return m_socket.get(); }
    void write(const QByteArray &bytes);
    bool isAllTaken() const;
    void startWait();
    void stopWait();
    void setProgress(qsizetype bytes);
    /// False when the talk has ended in answer to the signal: nothing may be touched then.
    [[nodiscard]] bool tellStep(const QString &label);
    void succeed();
    void fail(const Notice &notice);
    /// As a talk that fails before it has begun.
    void refuse(const Notice &notice);

private:
    enum class Phase
    {
        Idle,
        Talking,
        Telling
    };

    void read();
    void pump();
    void countTaken(qint64 bytes);
    void breakOff();
    void runOut();
    void end(ExchangeResult result);
    void letGo(ExchangeResult::End end);

    const ExchangeTimes m_times;
    const Labels m_labels;
    std::unique_ptr<QTcpSocket> m_socket;
    QTimer m_overallTimer;
    QTimer m_waitTimer;
    QByteArray m_outgoing;
    qsizetype m_handedOver = 0; ///< Of the outgoing bytes.
    qsizetype m_taken = 0;      ///< Since the start.
    Phase m_phase = Phase::Idle;
};
