// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>

#include <memory>

/// Goes off once, at a moment of the wall clock: neither the sleep of the computer nor a change of its clock puts it
/// off. It always goes off from the event loop, also for a moment that is past when it is started.
class WallAlarm : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Starts anew where it is running.
    virtual void start(const QDateTime &moment) = 0;
    virtual void stop() = 0;
    virtual bool isRunning() const = 0;

signals:
    void due();
};

/// The time of day as the program sees it; tests set it by hand.
class Clock : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QDateTime now() const = 0;
    virtual std::unique_ptr<WallAlarm> makeAlarm() = 0;

signals:
    /// The clock was set, forward or back, or has another time zone: what day and hour it is has changed. Alarms that
    /// run go by its new time already.
    void clockSet();
};
