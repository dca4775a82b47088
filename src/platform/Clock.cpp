// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Clock.h"

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}
