// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "Runs.h"
#include "support/compareRow.h"
#include "support/failOnWarnings.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace
{

QStringList messages;

void remember(QtMsgType, const QMessageLogContext &, const QString &message)
{
    messages.append(message);
}

/// Reads a damaged file, keeps it aside, writes, and fails to write.
QString logOfARun(const QString &rules)
{
    Runs runs;
    const clsNoteProps note{.TitleBarTitle = u"secret title"_s, .Pwd = u"secret word"_s, .Data = u"secret"_s, .Tag = 1};
    static_cast<void>(modFileIO::WriteNoteRecord(runs.state, note, NoteFate::Keep));
    setContents(runs.paths.OptionsFile, "SMTP Server = secret host\r\nHeight = secret height");
    clsprogramoptions options;
    messages.clear();
    QLoggingCategory::setFilterRules(rules);
    const QtMessageHandler former = qInstallMessageHandler(remember);
    modFileIO::LoadOptionsFile(runs.paths, options);
    runs.startWith(runs.dataFile().chopped(1));
    static_cast<void>(modFileIO::WriteNoteRecord(runs.state, note, NoteFate::Keep));
    runs.spoilDataFile();
    static_cast<void>(runs.remove(1));
    qInstallMessageHandler(former);
    QLoggingCategory::setFilterRules({});
    return messages.join(u'\n');
}

} // namespace

/// Where everything is, what is in the data folder besides the data file, and what the log tells of it.
class testDataFolder final : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }

    void whereAProgramsFilesAre()
    {
        const auto row = [](const char *name, const QStringList &folders, const QString &shared,
                            const QString &module) {
            const QTemporaryDir prefix;
            for (const QString &folder : folders)
                QVERIFY(QDir(prefix.path()).mkpath(folder));
            const ProgramPaths paths = ProgramPaths::of(prefix.filePath(u"bin"_s), u"/home/somebody"_s);
            compareRow(name, paths.ImagesFolder, prefix.filePath(shared) + u"/images"_s);
            compareRow(name, paths.HelpFile, prefix.filePath(shared) + u"/help/index.html"_s);
            compareRow(name, paths.SoundModule, prefix.filePath(module) + u"/quillets_sound"_s);
            compareRow(name, paths.DataFolder, u"/home/somebody/Data"_s);
        };
        const QStringList built{u"bin/images"_s};
        const QStringList installed{u"bin"_s, u"share/quillets/images"_s};
        row("built", built, u"bin"_s, u"bin"_s);
        row("installed", installed, u"share/quillets"_s, u"lib/quillets/modules"_s);
        row("built beside an installed one", built + installed, u"bin"_s, u"bin"_s);
        row("installed without its pictures", {u"bin"_s, u"share/quillets"_s}, u"bin"_s, u"bin"_s);
    }

    void shutToOthers()
    {
        const auto row = [](const QString &name, const QString &files, bool isShut) {
            const TestHome home;
            const QString folder = home.paths.DataFolder;
            QVERIFY(files.isEmpty() ? QDir().rmdir(folder) : QFile::setPermissions(folder, QFile::Permissions(0x7755)));
            for (const QString &file : files.split(u' ', Qt::SkipEmptyParts))
                setContents(folder + u'/' + file, "x");
            QVERIFY(modFileIO::prepareDataFolder(home.paths).ok());
            const QFile::Permissions others = QFile::permissions(folder) & QFile::Permissions(0x0077);
            compareRow(qPrintable(name), others == QFile::Permissions(), isShut);
        };
        row(u"no folder"_s, {}, true);
        row(u"own files"_s,
            u"quillets.dat quillets.bak quillets.set misc.set window.set address.txt host.txt quillets.lock backups "
            "window.set.lock network.set keys.set quillets-2026-11-22-221530-before-damage-2.bak quillets.dat.xYzabC"_s,
            true);
        for (const QString &other : {u"letter.txt"_s, u".hidden"_s, u"quillets.dat.old.txt"_s, u"Quillets.dat"_s})
            row(u"beside "_s + other, u"quillets.dat "_s + other, false);
    }

    void noFolder()
    {
        const TestHome home;
        QVERIFY(QDir().rmdir(home.paths.DataFolder));
        setContents(home.paths.DataFolder, "a file");
        const auto file = modFileIO::prepareDataFolder(home.paths);
        QVERIFY(!file && file.error().endsWith(u"is not a folder."));
        const auto nowhere = modFileIO::prepareDataFolder(ProgramPaths::under({}, home.paths.DataFolder));
        QVERIFY(!nowhere && nowhere.error().endsWith(u"cannot be made."));
    }

    /// What a killed write left goes at the next start; what a person may have put there stays.
    void leftovers()
    {
        const QStringList go{u"quillets.dat.xYzabC"_s, u"quillets.bak.ABcdEF"_s, u"window.set.qqqQqq"_s,
                             u"quillets-2026-11-22-221530-damaged.dat.aBcdef"_s, u"window.set.lock"_s};
        const QStringList stay{u"letter.txt.xYzabC"_s,     u"quillets-copy.dat.xYzabC"_s, u"quillets.dat"_s,
                               u"quillets.dat.20261122"_s, u"quillets.dat.BACKUP"_s,      u"quillets.dat.Backup"_s,
                               u"quillets.dat.backup"_s,   u"quillets.dat.old"_s,         u"quillets.dat.xYzabCd"_s};
        Runs runs;
        for (const QString &name : go + stay)
            setContents(runs.paths.DataFolder + u'/' + name, {});
        runs.start();
        const QStringList left = QDir(runs.paths.DataFolder).entryList(QDir::Files, QDir::NoSort);
        for (const QString &name : go)
            QVERIFY2(!left.contains(name), qPrintable(name));
        for (const QString &name : stay)
            QVERIFY2(left.contains(name), qPrintable(name));
    }

    void unreadableFilesAreKept()
    {
        const TestHome home;
        const ProgramPaths &paths = home.paths;
        const auto makeFolder = [](const QString &path) { QVERIFY(QDir().mkdir(path)); };
        const auto makeHuge = [](const QString &path) { setContents(path, QByteArray(2 * 1024 * 1024, '\n')); };
        const auto row = [&](const char *name, const QString &path, void (*spoil)(const QString &), int keptThen) {
            QFile::remove(path);
            spoil(path);
            clsprogramoptions options;
            modFileIO::LoadOptionsFile(paths, options);
            QVERIFY2(modFileIO::SaveOptionsFile(paths, options).ok(), name);
            QVERIFY2(modFileIO::SaveRecentList(paths, RecentList::Send, {u"host"_s}, 1).ok(), name);
            compareRow(name, modFileIO::LoadRecentList(paths, RecentList::Send), {u"host"_s});
            compareRow(name, int(QDir(paths.DataFolder).entryList({u"*-unreadable*.set"_s}).size()), keptThen);
        };
        row("options in a folder", paths.OptionsFile, makeFolder, 1);
        row("huge options", paths.OptionsFile, makeHuge, 2);
        row("recent lists in a folder", paths.MiscFile, makeFolder, 3);
        row("huge recent lists", paths.MiscFile, makeHuge, 4);
        const clsprogramoptions endless{.NameName = QString(2 * 1024 * 1024, u'x')};
        QVERIFY(!modFileIO::SaveOptionsFile(paths, endless));
    }

    void logsTellPathsAndReasonsAlone()
    {
        QCOMPARE(logOfARun({}), QString()); // Nobody has asked for it.
        const QString log = logOfARun(u"quillets.files=true"_s);
        for (const QString &part : {u"quillets.dat\" read"_s, u"1 of 1 passed over: \"The record ends too early.\""_s,
                                    u"-damaged.dat"_s, u"replaced by"_s, u"not replaced: "_s, u"refused: \"Height\""_s})
            QVERIFY2(log.contains(part), qPrintable(part + u"\nin\n"_s + log));
        QVERIFY2(!log.contains(u"secret"), qPrintable(log));
    }
};

QTEST_APPLESS_MAIN(testDataFolder)
#include "testDataFolder.moc"
