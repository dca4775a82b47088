// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What this computer calls itself to a receiver: its name, and its address in parentheses where it has one.
QString machineIdentity();
QString identityText(const QString &hostName, const QString &address);
