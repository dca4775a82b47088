// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/machineIdentity.h"

#include <QNetworkInterface>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace
{

bool isInUse(const QNetworkInterface &network)
{
    const auto flags = network.flags();
    return flags.testFlags(QNetworkInterface::IsUp | QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack);
}

/// An IPv4 address where there is one: it is shorter to read.
QString localAddress()
{
    QString other;
    for (const QNetworkInterface &network : QNetworkInterface::allInterfaces()) {
        if (!isInUse(network))
            continue;
        for (const QNetworkAddressEntry &entry : network.addressEntries()) {
            const QHostAddress address = entry.ip();
            if (address.isLinkLocal())
                continue;
            if (address.protocol() == QAbstractSocket::IPv4Protocol)
                return address.toString();
            if (other.isEmpty())
                other = address.toString();
        }
    }
    return other;
}

} // namespace

QString machineIdentity()
{
    return identityText(QSysInfo::machineHostName(), localAddress());
}

QString identityText(const QString &hostName, const QString &address)
{
    return address.isEmpty() ? hostName : u"%1 (%2)"_s.arg(hostName, address);
}
