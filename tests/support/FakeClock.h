// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

/// A clock that stands still until it is moved. Moving it lets the alarms on the way go off in their order, each at
/// its own time.
class FakeClock final : public Clock
{
public:
    explicit FakeClock(const QDateTime &now) : m_now(now) {}

    QDateTime now() const override { return m_now; }
    std::unique_ptr<WallAlarm> makeAlarm() override { return std::make_unique<Alarm>(*this); }

    /// Time passes; events of the program are handled at each alarm and at the end.
    void advance(qint64 seconds) { passTo(m_now.addSecs(seconds)); }
    void passTo(const QDateTime &end)
    {
        ring();
        for (Alarm *next = nextBy(end); next != nullptr; next = nextBy(end)) {
            m_now = std::max(m_now, next->moment);
            ring();
        }
        m_now = end;
    }
    /// Somebody sets the clock.
    void set(const QDateTime &now)
    {
        m_now = now;
        emit clockSet();
        ring();
    }
    /// Alarms that are running.
    qsizetype runningCount() const
    {
        return std::count_if(m_alarms.begin(), m_alarms.end(), [](const Alarm *alarm) { return alarm->running; });
    }
    /// How often the program was woken.
    int wakeCount = 0;

private:
    class Alarm final : public WallAlarm
    {
    public:
        explicit Alarm(FakeClock &clock) : m_clock(clock) { clock.m_alarms.push_back(this); }
        ~Alarm() override { std::erase(m_clock.m_alarms, this); }

        void start(const QDateTime &at) override
        {
            moment = at;
            running = true;
        }
        void stop() override { running = false; }
        bool isRunning() const override { return running; }

        QDateTime moment;
        bool running = false;

    private:
        FakeClock &m_clock;
    };

    Alarm *nextBy(const QDateTime &end) const
    {
        Alarm *next = nullptr;
        for (Alarm *alarm : m_alarms)
            if (alarm->running && alarm->moment <= end && (next == nullptr || alarm->moment < next->moment))
                next = alarm;
        return next;
    }

    void ring()
    {
        QCoreApplication::processEvents();
        const auto all = m_alarms;
        for (Alarm *alarm : all) {
            const bool there = std::find(m_alarms.begin(), m_alarms.end(), alarm) != m_alarms.end();
            if (!there || !alarm->running || alarm->moment > m_now)
                continue;
            alarm->running = false;
            ++wakeCount;
            emit alarm->due();
        }
        QCoreApplication::processEvents();
    }

    QDateTime m_now;
    std::vector<Alarm *> m_alarms;
};
