// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where everything is that the program reads and writes. Forward slashes, no slash at the end.
struct ProgramPaths
{
    QString AppFolder;
    QString ImagesFolder;
    QString HelpFile;
    QString DataFolder;
    QString MiscFile;
    QString OptionsFile;
    QString DataFile;
    QString BackupFile;
    QString AddressBookFile;
    QString SendBookFile;

    /// The data folder lies in the working folder, pictures and help beside the program. Touches no disk.
    static ProgramPaths under(const QString &appFolder, const QString &workingFolder);
};
