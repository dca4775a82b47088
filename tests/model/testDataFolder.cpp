// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIO.h"
#include "samples.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class testDataFolder final : public QObject
{
    Q_OBJECT

private slots:
    void shutToOthers_data();
    void shutToOthers();
    void noFolder();
    void leftovers_data();
    void leftovers();
    void unreadableFilesAreKept_data();
    void unreadableFilesAreKept();
};

void testDataFolder::shutToOthers_data()
{
    QTest::addColumn<QStringList>("files"); // What is there; nothing: there is no folder.
    QTest::addColumn<bool>("isShut");
    QTest::newRow("made") << QStringList() << true;
    QTest::newRow("own files") << QStringList({u"quillets.dat"_s, u"quillets.bak"_s, u"quillets.set"_s, u"misc.set"_s,
                                               u"window.set"_s, u"address.txt"_s, u"host.txt"_s, u"quillets.lock"_s,
                                               u"window.set.lock"_s, u"backups"_s, u"network.set"_s, u"keys.set"_s,
                                               u"quillets-2026-11-22-221530-before-damage-2.bak"_s,
                                               u"quillets.dat.xYzabC"_s})
                               << true;
    for (const QString &other : {u"letter.txt"_s, u".hidden"_s, u"quillets.dat.old.txt"_s, u"Quillets.dat"_s})
        QTest::addRow("beside %s", qPrintable(other)) << QStringList({u"quillets.dat"_s, other}) << false;
}

void testDataFolder::shutToOthers()
{
    QFETCH(QStringList, files);
    QFETCH(bool, isShut);
    const QTemporaryDir home;
    const ProgramPaths paths = ProgramPaths::under(home.path(), home.path());
    if (!files.isEmpty())
        QVERIFY(QDir(home.path()).mkdir(u"Data"_s) &&
                QFile::setPermissions(paths.DataFolder, QFile::Permissions(0x7755)));
    for (const QString &file : files)
        setContents(paths.DataFolder + u'/' + file, "x");
    QVERIFY(modFileIO::prepareDataFolder(paths).ok());
    const auto others = QFile::permissions(paths.DataFolder) & QFile::Permissions(0x0077);
    QCOMPARE(others == QFile::Permissions(), isShut);
}

void testDataFolder::noFolder()
{
    const QTemporaryDir home;
    setContents(home.filePath(u"Data"_s), "a file");
    const auto file = modFileIO::prepareDataFolder(ProgramPaths::under({}, home.path()));
    QVERIFY(!file && file.error().endsWith(u"is not a folder."));
    const auto nowhere = modFileIO::prepareDataFolder(ProgramPaths::under({}, home.filePath(u"gone"_s)));
    QVERIFY(!nowhere && nowhere.error().endsWith(u"cannot be made."));
}

void testDataFolder::leftovers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("stays");
    for (const QString &name : {u"quillets.dat.xYzabC"_s, u"quillets.bak.ABcDEF"_s, u"window.set.qqqQqq"_s,
                                u"quillets-2026-11-22-221530-damaged.dat.aBcdef"_s, u"window.set.lock"_s})
        QTest::addRow("%s", qPrintable(name)) << name << false;
    for (const QString &name : {u"quillets.dat.backup"_s, u"quillets.dat.Backup"_s, u"quillets.dat.BACKUP"_s,
                                u"quillets.dat.old"_s, u"letter.txt.xYzabC"_s, u"quillets.dat.xYzabCd"_s,
                                u"quillets.dat.20261122"_s, u"quillets-copy.dat.xYzabC"_s, u"quillets.dat"_s})
        QTest::addRow("%s", qPrintable(name)) << name << true;
}

/// What a killed write left goes at the next start; what a person may have put there stays.
void testDataFolder::leftovers()
{
    QFETCH(QString, name);
    QFETCH(bool, stays);
    const QTemporaryDir home;
    DataFileState state;
    state.paths = ProgramPaths::under(home.path(), home.path());
    QVERIFY(modFileIO::prepareDataFolder(state.paths).ok());
    setContents(state.paths.DataFolder + u'/' + name, {});
    modFileIO::LoadDataFile(
        state, {}, 100, [](clsNoteProps &&) { return 1; }, {}, {}, QDateTime::currentDateTime());
    QCOMPARE(QFile::exists(state.paths.DataFolder + u'/' + name), stays);
}

void testDataFolder::unreadableFilesAreKept_data()
{
    QTest::addColumn<QString ProgramPaths::*>("file");
    QTest::addColumn<bool>("isFolder"); // else too large
    for (const bool isFolder : {true, false}) {
        QTest::addRow("quillets.set %d", isFolder) << &ProgramPaths::OptionsFile << isFolder;
        QTest::addRow("misc.set %d", isFolder) << &ProgramPaths::MiscFile << isFolder;
    }
}

void testDataFolder::unreadableFilesAreKept()
{
    QFETCH(QString ProgramPaths::*, file);
    QFETCH(bool, isFolder);
    const QTemporaryDir home;
    const ProgramPaths paths = ProgramPaths::under(home.path(), home.path());
    QVERIFY(modFileIO::prepareDataFolder(paths).ok());
    const QString path = paths.*file;
    for (int turn = 1; turn <= 2; ++turn) {
        QFile::remove(path);
        if (isFolder)
            QVERIFY(QDir().mkdir(path));
        else
            setContents(path, QByteArray(2 * 1024 * 1024, '\n'));
        clsprogramoptions options;
        modFileIO::LoadOptionsFile(paths, options);
        QVERIFY(modFileIO::SaveOptionsFile(paths, options).ok());
        QVERIFY(modFileIO::SaveRecentList(paths, RecentList::Send, {u"host"_s}, 1).ok());
        QCOMPARE(modFileIO::LoadRecentList(paths, RecentList::Send), QStringList(u"host"_s));
        QCOMPARE(QDir(paths.DataFolder).entryList({u"*-unreadable*.set"_s}).size(), turn);
    }
    clsprogramoptions endless;
    endless.NameName = QString(2 * 1024 * 1024, u'x');
    QVERIFY(!modFileIO::SaveOptionsFile(paths, endless));
}

QTEST_APPLESS_MAIN(testDataFolder)
#include "testDataFolder.moc"
