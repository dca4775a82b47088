// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Nearby.h"

#include <memory>

class BusProbe;

/// The system's service for names on the local network (Avahi), asked over the system bus. Nothing waits for it.
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
    struct Announced
    {
        QString name;
        quint16 port = 0;
    };

    void busAnswered();
    void beginLooking();
    void beginAnnouncing(const Announced &announced);
    void resolved(const QString &name, const QString &host, uint port);

    BusProbe *m_probe = nullptr;
    std::unique_ptr<Bus> m_bus; ///< Made when it is first needed, and answers.
    bool m_isLooking = false;
    bool m_waitsToLook = false;  ///< Until the bus answers.
    Announced m_waitsToAnnounce; ///< Likewise.
    int m_announcement = 0;      ///< Only the last one counts.
};
