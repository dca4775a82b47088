// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIOFolder.h"

#include "model/logs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modFileIO)
};

/// The names of the program's files, of their copies that were kept aside, and of both while they are being written.
bool isOwnName(const QString &name)
{
    static const QRegularExpression own(
        uR"(^(quillets\.[a-z]+|(misc|window|network|keys)\.set|(address|host)\.txt|backups)"
        uR"(|(quillets|misc|window|network|keys)-\d{4}-\d\d-\d\d-\d{6}(-[a-z-]+)?(-\d+)?\.[a-z]+)(\.[A-Za-z]{6}|\.lock)?$)"_s);
    return own.match(name).hasMatch();
}

/// Six letters as dice throw them. A person may have called a copy "quillets.dat.backup", or even "...Backup".
bool isThrown(const QString &ending)
{
    static const QRegularExpression anyCase(u"^[A-Za-z]{6}$"_s);
    const QString rest = ending.mid(1);
    return anyCase.match(ending).hasMatch() && rest != rest.toLower() && ending != ending.toUpper();
}

bool isLeftover(const QString &name)
{
    const bool isLock = name == u"window.set.lock"; // Of earlier versions, which had another writer for that file.
    return isOwnName(name) && (isLock || (name.count(u'.') == 2 && isThrown(name.section(u'.', -1))));
}

bool holdsOwnFilesAlone(const QDir &folder)
{
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QStringList names = folder.entryList(everything);
    return std::all_of(names.begin(), names.end(), isOwnName);
}

void removeLeftoversIn(const QDir &folder)
{
    for (const QString &name : folder.entryList(QDir::Files | QDir::NoSymLinks)) {
        if (!isLeftover(name))
            continue;
        const bool isRemoved = QFile::remove(folder.filePath(name));
        qCInfo(logs::files) << folder.filePath(name) << (isRemoved ? "was left behind: removed" : "not removed");
    }
}

} // namespace

Outcome<Done, QString> modFileIO::prepareDataFolder(const ProgramPaths &paths)
{
    const QString &path = paths.DataFolder;
    const bool isThere = QFileInfo(path).isDir();
    if (!isThere && !QDir().mkdir(path))
        return Failure{QFileInfo::exists(path) ? Texts::tr("%1 is not a folder.").arg(path)
                                               : Texts::tr("%1 cannot be made.").arg(path)};
    if (isThere && !holdsOwnFilesAlone(QDir(path)))
        qCInfo(logs::files) << path << "holds files of others: its permissions stay as they are";
    else if (!QFile::setPermissions(path, OwnerOnly))
        qCWarning(logs::files) << path << "cannot be shut to others";
    return Done{};
}

void modFileIO::removeLeftovers(const ProgramPaths &paths)
{
    removeLeftoversIn(QDir(paths.DataFolder));
    removeLeftoversIn(QDir(paths.BackupsFolder));
}
