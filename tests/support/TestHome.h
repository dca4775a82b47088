// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/ProgramPaths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A working folder of the test's own, with a data folder in it and the program's real pictures and help.
class TestHome
{
public:
    TestHome() : paths(ProgramPaths::under(QStringLiteral(TEST_RESOURCES), m_folder.path()))
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("Data"));
    }

    QByteArray dataFile() const { return contents(paths.DataFile); }
    void setDataFile(const QByteArray &bytes) const { setContents(paths.DataFile, bytes); }
    /// One of the files of tests/data.
    static QByteArray sample(const char *name)
    {
        return contents(QStringLiteral(TEST_DATA "/") + QLatin1StringView(name));
    }
    /// A folder where a file is to be written makes every write fail.
    void spoilDataFile() const
    {
        QFile::remove(paths.DataFile);
        QVERIFY(QDir().mkdir(paths.DataFile));
    }
    void healDataFile() const { QVERIFY(QDir().rmdir(paths.DataFile)); }

    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static void setContents(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

private:
    QTemporaryDir m_folder;

public:
    const ProgramPaths paths;
};
