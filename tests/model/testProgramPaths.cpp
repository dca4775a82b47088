// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/ProgramPaths.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestProgramPaths : public QObject
{
    Q_OBJECT

private slots:
    void whereAProgramsFilesAre_data()
    {
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QString>("shared");
        QTest::addColumn<QString>("module");
        const QStringList built{u"bin/images"_s};
        const QStringList installed{u"bin"_s, u"share/quillets/images"_s};
        const QStringList broken{u"bin"_s, u"share/quillets"_s};
        QTest::newRow("built") << built << u"bin"_s << u"bin"_s;
        QTest::newRow("installed") << installed << u"share/quillets"_s << u"lib/quillets/modules"_s;
        QTest::newRow("built beside an installed one") << built + installed << u"bin"_s << u"bin"_s;
        QTest::newRow("installed without its pictures") << broken << u"bin"_s << u"bin"_s;
    }

    void whereAProgramsFilesAre()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, shared);
        QFETCH(QString, module);
        const QTemporaryDir prefix;
        for (const QString &folder : folders)
            QVERIFY(QDir(prefix.path()).mkpath(folder));
        const ProgramPaths paths = ProgramPaths::of(prefix.filePath(u"bin"_s), u"/home/somebody"_s);
        QCOMPARE(paths.ImagesFolder, prefix.filePath(shared) + u"/images"_s);
        QCOMPARE(paths.HelpFile, prefix.filePath(shared) + u"/help/index.html"_s);
        QCOMPARE(paths.SoundModule, prefix.filePath(module) + u"/quillets_sound"_s);
        QCOMPARE(paths.DataFolder, u"/home/somebody/Data"_s);
    }
};

QTEST_GUILESS_MAIN(TestProgramPaths)
#include "testProgramPaths.moc"
