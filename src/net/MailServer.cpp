// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/MailServer.h"

using Security = clsNetworkSettings::Security;

quint16 MailServer::usedPort() const
{
    if (port != 0)
        return port;
    switch (security) {
    case Security::None:
        return 25;
    case Security::StartTls:
        return 587;
    case Security::Tls:
        return 465;
    }
    Q_UNREACHABLE();
}

MailStyle MailServer::style() const
{
    return security == Security::None ? MailStyle::Plain : MailStyle::Strict;
}
