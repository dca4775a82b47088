// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/ProgramPaths.h"

#include <QDir>

using namespace Qt::StringLiterals;

ProgramPaths ProgramPaths::under(const QString &appFolder, const QString &workingFolder)
{
    const QDir app(QDir::fromNativeSeparators(appFolder));
    const QDir data(QDir(QDir::fromNativeSeparators(workingFolder)).filePath(u"Data"_s));
    ProgramPaths paths;
    paths.AppFolder = app.path();
    paths.ImagesFolder = app.filePath(u"images"_s);
    paths.HelpFile = app.filePath(u"help/index.html"_s);
    paths.DataFolder = data.path();
    paths.MiscFile = data.filePath(u"misc.set"_s);
    paths.OptionsFile = data.filePath(u"quillets.set"_s);
    paths.DataFile = data.filePath(u"quillets.dat"_s);
    paths.BackupFile = data.filePath(u"quillets.bak"_s);
    paths.AddressBookFile = data.filePath(u"address.txt"_s);
    paths.SendBookFile = data.filePath(u"host.txt"_s);
    return paths;
}
