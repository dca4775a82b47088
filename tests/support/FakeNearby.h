// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Nearby.h"

/// A network in which a test says who is there.
class FakeNearby final : public Nearby
{
public:
    QList<NearbyComputer> there;
    bool isLooking = false;
    QString name;     ///< Announced.
    quint16 port = 0; ///< Announced, 0 when nothing is.

    void look() override
    {
        isLooking = true;
        for (const NearbyComputer &computer : there)
            emit found(computer);
    }
    void stopLooking() override { isLooking = false; }
    void announce(const QString &asName, quint16 onPort) override
    {
        name = asName;
        port = onPort;
    }
};
