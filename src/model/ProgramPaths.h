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
    QString SoundModule; ///< Without the suffix that the system gives its modules.
    QString DataFolder;
    QString LockFile; ///< Held by the one program that works on the data folder.
    QString MiscFile;
    QString OptionsFile;
    QString DataFile;
    QString BackupFile;
    QString BackupsFolder; ///< Dated copies of the data file.
    QString JournalFile;   ///< The notes that are ahead of the data file.
    QString EmptiedMark;   ///< There while the data file is empty because the user has deleted the last note.
    QString AddressBookFile;
    QString SendBookFile;
    QString WindowFile;

    /// The data folder lies in the working folder, pictures and help beside the program. Touches no disk.
    static ProgramPaths under(const QString &appFolder, const QString &workingFolder);

    /// The same for the program that runs: an installed one has its pictures and help in `../share/quillets` and its
    /// module in `../lib/quillets/modules`, unless they lie beside it as those of a built one do. Looks at the disk.
    static ProgramPaths of(const QString &programFolder, const QString &workingFolder);
};
