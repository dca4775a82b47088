// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QObject;
class QString;

/// The keyring of the desktop, which keeps passwords for the user. A test has one of its own.
class Keyring
{
public:
    Keyring() = default;
    Keyring(const Keyring &) = delete;
    Keyring &operator=(const Keyring &) = delete;
    virtual ~Keyring() = default;

    /// Called once, from the event loop, with an empty text where there is no password or no keyring; not when the
    /// context has gone by then. The desktop may ask the user first.
    virtual void read(const QString &account, QObject *context, std::function<void(const QString &)> found) = 0;
    /// What cannot be kept is asked for again the next time.
    virtual void keep(const QString &account, const QString &password) = 0;
};
