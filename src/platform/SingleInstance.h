// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>

/// One running program for each lock. The next start takes a lock over when the program that held it is gone, at once
/// and however it ended. The lock is given back with this object.
class SingleInstance
{
public:
    /// One program per login: the lock is in the runtime folder of the user.
    SingleInstance();
    /// One program for whatever the file stands for, such as the folder it is in.
    explicit SingleInstance(const QString &lockFile);

    /// False when another running program holds the lock.
    [[nodiscard]] bool acquire();

private:
    void removeNobodysLock();
    bool takeOver();

    QLockFile m_lock;
};
