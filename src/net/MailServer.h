// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNetworkSettings.h"
#include "net/MailMessage.h"

#include <QSslConfiguration>

#include <optional>

/// The mail server of the user.
struct MailServer
{
    QString host;
    quint16 port = 0; ///< 0: what is usual for the security.
    clsNetworkSettings::Security security = clsNetworkSettings::Security::None;
    QString user{};     ///< Empty: no log-in. It needs a security.
    QString password{}; ///< Goes to the server and nowhere else.
    /// Whom to believe that it is the server: the system's authorities, unless a test says others. Asking for those
    /// loads megabytes, which mail without security need not pay.
    std::optional<QSslConfiguration> tls{};

    quint16 usedPort() const;
    MailStyle style() const;
};
