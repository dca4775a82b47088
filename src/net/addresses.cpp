// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/addresses.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QHostAddress plainAddress(const QHostAddress &address)
{
    bool isIPv4 = false;
    const quint32 number = address.toIPv4Address(&isIPv4);
    if (isIPv4)
        return QHostAddress(number);
    QHostAddress plain = address;
    plain.setScopeId({});
    return plain;
}

bool isNearby(const QHostAddress &address)
{
    static const std::array privateNets = {QHostAddress::parseSubnet(u"10.0.0.0/8"_s),
                                           QHostAddress::parseSubnet(u"172.16.0.0/12"_s),
                                           QHostAddress::parseSubnet(u"192.168.0.0/16"_s)};
    const QHostAddress plain = plainAddress(address);
    return plain.isLoopback() || plain.isLinkLocal() || plain.isUniqueLocalUnicast() ||
           std::any_of(privateNets.begin(), privateNets.end(),
                       [&plain](const auto &net) { return plain.isInSubnet(net); });
}
