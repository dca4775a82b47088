// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Exchange.h"
#include "net/MailMessage.h"
#include "net/MailServer.h"
#include "net/SmtpReplies.h"

#include <functional>
#include <optional>

/// Sends one mail through a server (RFC 5321). Without security it is the plain talk of old: a reply with another code
/// than the one that is waited for is passed over, and the time runs out. With security a refusal is told at once, a
/// certificate that does not fit ends the talk, and nothing is sent before the line is encrypted. The details of a
/// failure are what the server said.
class MailSender final : public Exchange
{
    Q_OBJECT

public:
    static constexpr ExchangeTimes UsualTimes{std::chrono::seconds(90), std::chrono::seconds(50)};

    explicit MailSender(ExchangeTimes times = UsualTimes, QObject *parent = nullptr);

    /// Does nothing while it runs.
    void start(const MailServer &server, const MailMessage &message);

protected:
    void connectSocket(QTcpSocket &socket, const Place &place) override;
    void arrived(const QByteArray &bytes) override;
    void allTaken() override;
    void taken(qsizetype sum) override;
    void brokenOff(const QString &description) override;
    Notice waitFailure() const override;
    Notice overallFailure() const override;
    Notice socketFailure(const QString &description) const override;

private:
    /// One command and the reply that must follow it.
    struct Step
    {
        QByteArray sends; ///< With its line end; empty where the server speaks first.
        QString label;    ///< Empty: none is told.
        int code = 0;
        std::function<void(const SmtpReply &)> onReply{};   ///< What the right reply brings about; may add steps.
        std::function<bool(const SmtpReply &)> onRefusal{}; ///< True when another way was found.
    };

    bool isSecure() const { return m_server.security != clsNetworkSettings::Security::None; }
    void planGreeting();
    void planHello();
    void planLogIn(const SmtpReply &capabilities);
    void planStartTls(const SmtpReply &capabilities);
    void encrypt();
    void planMail();
    void planContent();
    void runStep();
    void advance();
    bool isWaitedFor(const SmtpReply &reply) const;
    void refused(const SmtpReply &reply);
    void remember(const QStringList &lines);
    void failWith(const QString &reason);

    MailServer m_server;
    MailMessage m_message;
    QList<Step> m_steps; ///< That whose reply is waited for, and those behind it.
    SmtpReplies m_replies;
    QStringList m_said;                     ///< By the server, the latest lines.
    qsizetype m_taken = 0;                  ///< Bytes, since the start.
    std::optional<qsizetype> m_contentFrom; ///< Where of these bytes the content began.
    bool m_isAccepted = false;              ///< The server has the mail: what follows is farewell.
};
