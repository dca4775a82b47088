// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SingleInstance.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
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

/// A lock without an owner is of a program that ended in the middle of making it, a moment ago or longer.
void SingleInstance::removeNobodysLock()
{
    constexpr qint64 LongestMaking = 5; // seconds
    qint64 process = 0;
    QString host;
    QString application;
    const QFileInfo file(m_lock.fileName());
    if (file.isFile() && !m_lock.getLockInfo(&process, &host, &application) &&
        file.lastModified().secsTo(QDateTime::currentDateTime()) > LongestMaking)
        QFile::remove(file.filePath());
}

bool SingleInstance::acquire()
{
    removeNobodysLock();
    // Where the folder cannot be written to, nobody can hold the lock: the program starts all the same.
    return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError;
}
