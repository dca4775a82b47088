// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/TimeZoneFiles.h"

#include <QFile>
#include <QFileInfo>

namespace
{
/// The largest zone has a few thousand bytes.
constexpr qint64 MostBytes = 100'000;
} // namespace

TimeZoneFiles::TimeZoneFiles(const QStringList &files, QObject *parent)
    : QObject(parent), m_files(files), m_known(contents())
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &TimeZoneFiles::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &TimeZoneFiles::look);
    watch();
}

QStringList TimeZoneFiles::ofSystem()
{
    return {QStringLiteral("/etc/localtime"), QStringLiteral("/etc/timezone")};
}

/// A file that was replaced is no longer watched, only its place in the folder.
void TimeZoneFiles::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &file : m_files)
        for (const QString &path : {file, QFileInfo(file).path()})
            if (!watched.contains(path) && QFileInfo::exists(path))
                m_watcher.addPath(path);
}

void TimeZoneFiles::look()
{
    watch();
    // Much else is in that folder.
    if (const QByteArray now = contents(); std::exchange(m_known, now) != now)
        emit changed();
}

QByteArray TimeZoneFiles::contents() const
{
    QByteArray all;
    for (const QString &path : m_files) {
        // Opening a pipe would wait for a writer.
        QFile file(path);
        if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
            all += file.read(MostBytes);
        all += '\0';
    }
    return all;
}
