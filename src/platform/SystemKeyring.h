// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Keyring.h"

class SystemKeyring final : public Keyring
{
public:
    void read(const QString &account, QObject *context, std::function<void(const QString &)> found) override;
    void keep(const QString &account, const QString &password) override;
};
