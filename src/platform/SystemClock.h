// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/TimeZoneFiles.h"

/// The clock of the computer. It wakes nobody while no alarm is due and neither the clock nor the time zone is set.
class SystemClock final : public Clock
{
    Q_OBJECT

public:
    /// The files that hold the time zone; a test has its own.
    explicit SystemClock(const QStringList &zoneFiles = TimeZoneFiles::ofSystem());
    ~SystemClock() override;

    QDateTime now() const override;
    std::unique_ptr<WallAlarm> makeAlarm() override;

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
    TimeZoneFiles m_zone;
};
