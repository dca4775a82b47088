// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemClock.h"

#include <QTimer>

#include <algorithm>
#include <chrono>

#if defined(Q_OS_LINUX)
#include <QSocketNotifier>

#include <cerrno>
#include <sys/timerfd.h>
#include <unistd.h>
#elif defined(Q_OS_WIN)
#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <windows.h>
#endif

using namespace std::chrono_literals;

namespace
{

/// For systems without timers of the wall clock: looks at the clock again after at most a minute.
class SteppingAlarm final : public WallAlarm
{
public:
    SteppingAlarm()
    {
        m_step.setSingleShot(true);
        m_step.setTimerType(Qt::PreciseTimer);
        connect(&m_step, &QTimer::timeout, this, &SteppingAlarm::stepEnded);
    }

    void start(const QDateTime &moment) override
    {
        m_moment = moment;
        m_step.start(left());
    }
    void stop() override { m_step.stop(); }
    bool isRunning() const override { return m_step.isActive(); }

private:
    std::chrono::milliseconds left() const
    {
        const std::chrono::milliseconds rest(QDateTime::currentDateTime().msecsTo(m_moment));
        return std::clamp<std::chrono::milliseconds>(rest, 0ms, 1min);
    }

    void stepEnded()
    {
        if (const auto rest = left(); rest > 0ms)
            m_step.start(rest);
        else
            emit due();
    }

    QTimer m_step;
    QDateTime m_moment;
};

} // namespace

#if defined(Q_OS_LINUX)

namespace
{

/// Seconds since 1970 that no clock is ever set to (the year 2255).
constexpr qint64 NeverSeconds = 9'000'000'000;

/// A timer of the kernel that runs on the wall clock, through sleeps of the computer too.
class TimerFile
{
public:
    enum class Reading
    {
        Nothing,
        Expired,
        ClockWasSet
    };

    TimerFile() : m_file(::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)) {}
    TimerFile(const TimerFile &) = delete;
    TimerFile &operator=(const TimerFile &) = delete;
    ~TimerFile()
    {
        if (isOpen())
            ::close(m_file);
    }

    bool isOpen() const { return m_file >= 0; }
    int descriptor() const { return m_file; }

    void startAt(std::chrono::milliseconds sinceEpoch, int extraFlags = 0)
    {
        // A moment of zero would stop the timer.
        const auto moment = std::max(sinceEpoch, std::chrono::milliseconds(1));
        const auto seconds = std::chrono::floor<std::chrono::seconds>(moment);
        const std::chrono::nanoseconds fraction = moment - seconds;
        set({static_cast<time_t>(seconds.count()), static_cast<long>(fraction.count())}, extraFlags);
    }
    void stop() { set({0, 0}, 0); }

    Reading read()
    {
        quint64 expirations = 0;
        if (::read(m_file, &expirations, sizeof expirations) == sizeof expirations)
            return Reading::Expired;
        return errno == ECANCELED ? Reading::ClockWasSet : Reading::Nothing;
    }

private:
    void set(timespec moment, int extraFlags)
    {
        const itimerspec spec{{0, 0}, moment};
        if (::timerfd_settime(m_file, TFD_TIMER_ABSTIME | extraFlags, &spec, nullptr) != 0)
            qWarning("Timer not set: %d", errno);
    }

    int m_file;
};

class KernelAlarm final : public WallAlarm
{
public:
    KernelAlarm() : m_notifier(QSocketNotifier::Read)
    {
        if (!m_timer.isOpen())
            return;
        m_notifier.setSocket(m_timer.descriptor());
        m_notifier.setEnabled(true);
        connect(&m_notifier, &QSocketNotifier::activated, this, &KernelAlarm::readable);
    }

    bool isUsable() const { return m_timer.isOpen(); }
    void start(const QDateTime &moment) override
    {
        m_running = true;
        m_timer.startAt(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
    }
    void stop() override
    {
        if (std::exchange(m_running, false))
            m_timer.stop();
    }
    bool isRunning() const override { return m_running; }

private:
    void readable()
    {
        if (m_timer.read() == TimerFile::Reading::Expired && std::exchange(m_running, false))
            emit due();
    }

    TimerFile m_timer;
    QSocketNotifier m_notifier;
    bool m_running = false;
};

} // namespace

/// A timer that never expires and is cancelled by the kernel whenever the clock is set.
class SystemClock::Watch
{
public:
    explicit Watch(SystemClock &clock) : m_notifier(QSocketNotifier::Read)
    {
        if (!m_timer.isOpen())
            return;
        rearm();
        m_notifier.setSocket(m_timer.descriptor());
        m_notifier.setEnabled(true);
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &clock, [this, &clock] {
            if (m_timer.read() == TimerFile::Reading::Nothing)
                return;
            rearm();
            emit clock.clockSet();
        });
    }

private:
    void rearm() { m_timer.startAt(std::chrono::seconds(NeverSeconds), TFD_TIMER_CANCEL_ON_SET); }

    TimerFile m_timer;
    QSocketNotifier m_notifier;
};

std::unique_ptr<WallAlarm> SystemClock::makeAlarm()
{
    if (auto alarm = std::make_unique<KernelAlarm>(); alarm->isUsable())
        return alarm;
    return std::make_unique<SteppingAlarm>();
}

#elif defined(Q_OS_WIN)

/// The system sends its message to every window of the program; they count as one change.
class SystemClock::Watch final : public QAbstractNativeEventFilter
{
public:
    explicit Watch(SystemClock &clock)
    {
        m_collect.setSingleShot(true);
        QObject::connect(&m_collect, &QTimer::timeout, &clock, &SystemClock::clockSet);
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        if (static_cast<const MSG *>(message)->message == WM_TIMECHANGE)
            m_collect.start(0ms);
        return false;
    }

private:
    QTimer m_collect;
};

std::unique_ptr<WallAlarm> SystemClock::makeAlarm()
{
    return std::make_unique<SteppingAlarm>();
}

#else

/// Nothing tells that the clock was set; alarms look at it every minute.
class SystemClock::Watch
{
public:
    explicit Watch(SystemClock &) {}
};

std::unique_ptr<WallAlarm> SystemClock::makeAlarm()
{
    return std::make_unique<SteppingAlarm>();
}

#endif

SystemClock::SystemClock(const QStringList &zoneFiles) : m_watch(std::make_unique<Watch>(*this)), m_zone(zoneFiles)
{
    connect(&m_zone, &TimeZoneFiles::changed, this, &SystemClock::clockSet);
}

SystemClock::~SystemClock() = default;

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}
