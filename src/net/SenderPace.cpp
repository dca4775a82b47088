// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/SenderPace.h"

#include <algorithm>

SenderPace::Duration SenderPace::delay(const QHostAddress &sender, Time now) const
{
    const auto found = m_wholeAgain.constFind(sender);
    if (found == m_wholeAgain.cend())
        return {};
    const Time turn = *found - (m_burst - 1) * m_interval;
    return std::max(Duration::zero(), std::chrono::ceil<Duration>(turn - now));
}

void SenderPace::count(const QHostAddress &sender, Time now)
{
    if (sender.isLoopback())
        return;
    forget(now);
    m_wholeAgain[sender] = std::max(m_wholeAgain.value(sender, now), now) + m_interval;
}

void SenderPace::forget(Time now)
{
    m_wholeAgain.removeIf([now](const auto &sender) { return sender.value() <= now; });
}
