// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Keyring.h"

#include <QHash>
#include <QMetaObject>
#include <QObject>

/// Keeps passwords in memory.
class FakeKeyring final : public Keyring
{
public:
    QHash<QString, QString> passwords;

    void read(const QString &account, QObject *context, std::function<void(const QString &)> found) override
    {
        QMetaObject::invokeMethod(
            context, [this, account, found] { found(passwords.value(account)); }, Qt::QueuedConnection);
    }
    void keep(const QString &account, const QString &password) override { passwords.insert(account, password); }
};
