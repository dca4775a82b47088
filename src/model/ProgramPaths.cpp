// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/ProgramPaths.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

ProgramPaths ProgramPaths::under(const QString &appFolder, const QString &workingFolder)
{
    const QDir app(QDir::fromNativeSeparators(appFolder));
    const QDir data(QDir(QDir::fromNativeSeparators(workingFolder)).filePath(u"Data"_s));
    ProgramPaths paths;
    paths.AppFolder = app.path();
    paths.ImagesFolder = app.filePath(u"images"_s);
    paths.HelpFile = app.filePath(u"help/index.html"_s);
    paths.SoundModule = app.filePath(u"quillets_sound"_s);
    paths.DataFolder = data.path();
    paths.LockFile = data.filePath(u"quillets.lock"_s);
    paths.MiscFile = data.filePath(u"misc.set"_s);
    paths.OptionsFile = data.filePath(u"quillets.set"_s);
    paths.DataFile = data.filePath(u"quillets.dat"_s);
    paths.BackupFile = data.filePath(u"quillets.bak"_s);
    paths.BackupsFolder = data.filePath(u"backups"_s);
    paths.JournalFile = data.filePath(u"quillets.jnl"_s);
    paths.EmptiedMark = data.filePath(u"quillets.emptied"_s);
    paths.AddressBookFile = data.filePath(u"address.txt"_s);
    paths.SendBookFile = data.filePath(u"host.txt"_s);
    paths.WindowFile = data.filePath(u"window.set"_s);
    return paths;
}

ProgramPaths ProgramPaths::of(const QString &programFolder, const QString &workingFolder)
{
    const ProgramPaths beside = under(programFolder, workingFolder);
    const QDir prefix(QDir::cleanPath(QDir(programFolder).filePath(u".."_s)));
    ProgramPaths installed = under(prefix.filePath(u"share/quillets"_s), workingFolder);
    installed.SoundModule = prefix.filePath(u"lib/quillets/modules/quillets_sound"_s);
    const bool isInstalled = !QFileInfo(beside.ImagesFolder).isDir() && QFileInfo(installed.ImagesFolder).isDir();
    return isInstalled ? installed : beside;
}
