// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/NoteSender.h"

#include <QList>

/// Sends one packet to several receivers, one exchange after the other. A failure does not keep the note from the
/// targets behind it; who stops, stops for all.
class SendRun final : public QObject
{
    Q_OBJECT

public:
    explicit SendRun(ExchangeTimes times = NoteSender::UsualTimes, QObject *parent = nullptr);

    /// Of the exchange that runs: steps and progress, and `stop`.
    NoteSender &sender() { return m_sender; }
    bool isRunning() const { return m_isRunning; }
    /// Does nothing while it runs.
    void start(const QByteArray &packet, const QList<SendTarget> &targets);
    void stop();

signals:
    void targetBegun(const SendTarget &target);
    /// A box may be shown in answer: the next exchange begins when the slots have returned.
    void targetFinished(const SendTarget &target, const ExchangeResult &result);
    void finished();

private:
    void next();
    void finishTarget(const ExchangeResult &result);

    NoteSender m_sender;
    QByteArray m_packet;
    QList<SendTarget> m_targets; ///< That which is being sent to, and those behind it.
    bool m_isRunning = false;
};
