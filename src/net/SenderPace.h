// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QHostAddress>

#include <chrono>

/// How soon the next note of an address is taken: a burst at once, then one in each interval. It slows a flood and
/// refuses nothing. Loopback is exempt.
class SenderPace
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;

    SenderPace(int burst, Duration interval) : m_burst(burst), m_interval(interval) {}

    /// 0 when it is its turn.
    Duration delay(const QHostAddress &sender, Time now) const;
    void count(const QHostAddress &sender, Time now);

private:
    void forget(Time now);

    const int m_burst;
    const Duration m_interval;
    /// When each address would have its whole burst again; who has it is not listed.
    QHash<QHostAddress, Time> m_wholeAgain;
};
