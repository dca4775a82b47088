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

SingleInstance::SingleInstance() : SingleInstance(lockPath()) {}

SingleInstance::SingleInstance(const QString &lockFile) : m_lock(lockFile)
{
    m_lock.setStaleLockTime(0);
}

/// A lock without an owner is of a program that ended in the middle of making it, a moment ago or longer.
void SingleInstance::removeNobodysLock()
{
    constexpr qint64 LongestMaking = 5; // seconds
    constexpr qint64 LargestLock = 4096;
    qint64 process = 0;
    QString host;
    QString application;
    const QFileInfo file(m_lock.fileName());
    const bool isNobodys =
        file.isFile() && (file.size() > LargestLock || !m_lock.getLockInfo(&process, &host, &application));
    if (isNobodys && file.lastModified().secsTo(QDateTime::currentDateTime()) > LongestMaking)
        QFile::remove(file.filePath());
}

/// A folder on a stick or a share may bring along the lock of another computer, and a power cut leave half of one; of
/// the processes they name nothing is known here. A lock is removed unless the file system knows that it is still held.
bool SingleInstance::takeOver()
{
    qint64 process = 0;
    QString host;
    QString application;
    return m_lock.getLockInfo(&process, &host, &application) && m_lock.removeStaleLockFile() && m_lock.tryLock();
}

bool SingleInstance::acquire()
{
    removeNobodysLock();
    // Where the folder cannot be written to, nobody can hold the lock: the program starts all the same.
    return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError || takeOver();
}
