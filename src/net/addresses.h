// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>

/// An IPv4 address that comes in the clothes of IPv6 as itself, any other as it is, without its scope.
QHostAddress plainAddress(const QHostAddress &address);
/// Loopback, the private networks and the addresses that are valid on one link alone.
bool isNearby(const QHostAddress &address);
