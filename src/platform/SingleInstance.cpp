// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SingleInstance.h"

#include <QStandardPaths>

namespace
{

QString lockPath()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return folder + QStringLiteral("/quillets.lock");
}

} // namespace

SingleInstance::SingleInstance() : m_lock(lockPath())
{
    m_lock.setStaleLockTime(0);
}

bool SingleInstance::acquire()
{
    // Where the folder cannot be written to, nobody can hold the lock: the program starts all the same.
    return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
}
