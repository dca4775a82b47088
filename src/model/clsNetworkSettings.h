// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What the user settles about the network beside the program's options.
struct clsNetworkSettings
{
    enum class Senders
    {
        Everybody, ///< Nearby, unless far senders are on.
        SendBook,  ///< Computers in the send book, nearby likewise.
        Nobody
    };
    enum class Security
    {
        None,
        StartTls, ///< Required: without it nothing is sent.
        Tls
    };

    Senders AcceptFrom = Senders::Everybody;
    bool FarSendersOn = false;    ///< Also from addresses outside loopback, private and link-local ones.
    QStringList BlockedSenders{}; ///< Addresses.
    bool AnnounceOn = false;      ///< Computers nearby may see this one.
    Security MailSecurity = Security::None;
    qint32 MailPort = 0; ///< 0: what is usual for the security.
    QString MailUser{};  ///< Empty: no log-in. Its password is kept elsewhere.

    bool operator==(const clsNetworkSettings &) const = default;
};
