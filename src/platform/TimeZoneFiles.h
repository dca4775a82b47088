// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>

/// Tells when the time zone of the computer is changed, on systems that keep it in files: their folder is watched too,
/// for a file or a link that is put in the place of the former. It wakes nobody as long as nothing changes there.
class TimeZoneFiles final : public QObject
{
    Q_OBJECT

public:
    explicit TimeZoneFiles(const QStringList &files, QObject *parent = nullptr);

    /// Where they are; on other systems there is nothing at these places.
    static QStringList ofSystem();

signals:
    void changed();

private:
    void look();
    void watch();
    QByteArray contents() const;

    QStringList m_files;
    QByteArray m_known;
    QFileSystemWatcher m_watcher;
};
