// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Nearby.h"

#include <memory>

/// The system's service for names on the local network (Avahi), asked over the system bus.
class SystemNearby final : public Nearby
{
    Q_OBJECT

public:
    explicit SystemNearby(QObject *parent = nullptr);
    ~SystemNearby() override;

    void look() override;
    void stopLooking() override;
    void announce(const QString &name, quint16 port) override;

private slots:
    void itemNew(int interface, int protocol, const QString &name, const QString &type, const QString &domain,
                 uint flags);

private:
    struct Bus;

    void resolved(const QString &name, const QString &host, uint port);

    std::unique_ptr<Bus> m_bus; ///< Made when it is first needed.
    bool m_isLooking = false;
    int m_announcement = 0; ///< Only the last one counts.
};
