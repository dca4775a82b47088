// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>

/// One running program per login: a lock in the runtime folder of the user, which the next start takes over when the
/// program that held it is gone.
class SingleInstance
{
public:
    SingleInstance();

    /// False when another running program holds the lock.
    [[nodiscard]] bool acquire();

private:
    void removeNobodysLock();

    QLockFile m_lock;
};
