// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/SendRun.h"

#include <QPointer>

SendRun::SendRun(ExchangeTimes times, QObject *parent) : QObject(parent), m_sender(times)
{
    connect(&m_sender, &NoteSender::finished, this, &SendRun::finishTarget);
}

void SendRun::start(const QByteArray &packet, const QList<SendTarget> &targets)
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_packet = packet;
    m_targets = targets;
    next();
}

void SendRun::stop()
{
    // The one under way tells that it was canceled.
    m_targets.resize(m_sender.isRunning() ? 1 : 0);
    m_sender.stop();
}

void SendRun::next()
{
    if (m_targets.isEmpty()) {
        m_packet.clear();
        m_isRunning = false;
        emit finished();
        return;
    }
    const QPointer<SendRun> self = this;
    const SendTarget target = m_targets.first();
    emit targetBegun(target);
    if (!self)
        return;
    if (m_targets.isEmpty())
        return next();
    m_sender.start(m_packet, target);
}

void SendRun::finishTarget(const ExchangeResult &result)
{
    const SendTarget target = m_targets.takeFirst();
    if (result.end == ExchangeResult::End::Canceled)
        m_targets.clear();
    const QPointer<SendRun> self = this;
    emit targetFinished(target, result);
    if (self)
        next();
}
