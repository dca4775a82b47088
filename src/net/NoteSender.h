// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Exchange.h"
#include "net/ReplyDigits.h"
#include "net/SendTarget.h"

/// Sends one packet to one receiver: it connects, hears "250", sends the length, hears it repeated, sends the rest and
/// hears "300".
class NoteSender final : public Exchange
{
    Q_OBJECT

public:
    static constexpr ExchangeTimes UsualTimes{std::chrono::seconds(50), std::chrono::seconds(50)};

    explicit NoteSender(ExchangeTimes times = UsualTimes, QObject *parent = nullptr);

    /// Does nothing while it runs. A packet or a port that is out of range fails as everything else does.
    void start(const QByteArray &packet, const SendTarget &target);

protected:
    void arrived(const QByteArray &bytes) override;
    void allTaken() override;
    Notice waitFailure() const override;
    Notice overallFailure() const override;
    Notice socketFailure(const QString &description) const override;

private:
    enum class Stage
    {
        WaitingForReady,
        WaitingForLength,
        Disagreed, ///< The receiver repeated another length: nothing it says is believed any more.
        SendingRest,
        WaitingForReceived
    };

    void advance();
    void sendLength();
    void compareLength();
    void sendRest();

    QByteArray m_packet;
    ReplyDigits m_reply;
    quint16 m_port = 0;
    Stage m_stage = Stage::WaitingForReady;
};
