// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteSources.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Where notes are looked for, and files as they come.
class testNoteSources final : public QObject
{
    Q_OBJECT

private slots:
    void foundInTheirPlaces();
    void chosenFiles();
    void nothingKeepsBusy_data();
    void nothingKeepsBusy();
};

namespace
{

void put(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace

void testNoteSources::foundInTheirPlaces()
{
    const QTemporaryDir home;
    const noteSources::Folders folders{home.path(), home.path(), home.path()};
    QVERIFY(noteSources::found(folders).empty());
    put(home.filePath(u"gnote/a.note"_s), "<note><title>a</title></note>");
    put(home.filePath(u"gnote/b.note"_s), "no note");
    put(home.filePath(u"xpad/content-1"_s), "a pad");
    put(home.filePath(u"xpad/content-2"_s), " \n");
    put(home.filePath(u"xpad/info-2"_s), "follow_color 0\nback rgb(255,238,153)\ncontent content-1\n");
    put(home.filePath(u".kde/share/apps/knotes/notes.ics"_s),
        "BEGIN:VJOURNAL\nSUMMARY:a\nEND:VJOURNAL\nBEGIN:VJOURNAL\nSUMMARY:b\nEND:VJOURNAL\n");
    QVERIFY(QFile::link(home.filePath(u".kde"_s), home.filePath(u".kde4"_s)));
    const auto sources = noteSources::found(folders);
    QStringList all;
    for (const auto &source : sources)
        all.append(u"%1 %2"_s.arg(source.program).arg(source.notes.size()));
    QCOMPARE(all, (QStringList{u"xpad 1"_s, u"Gnote 1"_s, u"KNotes 2"_s}));
    QCOMPARE(sources[0].notes[0].backColour, 0x99EEFF);
    QVERIFY(sources[0].notes[0].date.isValid());
}

void testNoteSources::chosenFiles()
{
    const QTemporaryDir home;
    put(home.filePath(u"Some words.v2.TXT"_s), "text");
    put(home.filePath(u"b.md"_s), "# Heading\n\ntext");
    put(home.filePath(u"c.png"_s), "text");
    put(home.filePath(u"d.note"_s), "no note");
    QStringList paths;
    for (const QString &name : {u"Some words.v2.TXT"_s, u"b.md"_s, u"c.png"_s, u"d.note"_s, u"missing.txt"_s})
        paths.append(home.filePath(name));
    const auto read = noteSources::ofFiles(paths);
    QCOMPARE(read.notes.size(), size_t(2));
    QCOMPARE(read.notes[0].title, u"Some words.v2"_s);
    QCOMPARE(read.notes[1].title, u"Heading"_s);
    QCOMPARE(read.refused, paths.mid(2));
}

void testNoteSources::nothingKeepsBusy_data()
{
    constexpr qsizetype Many = 300'000;
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("bytes");
    for (const char *mark : {"<", "<!--", "<head ", "<style>", "&", "<br ", "</p "})
        QTest::newRow(mark) << u"a.ics"_s << "BEGIN:VJOURNAL\nDESCRIPTION:<html>" + QByteArray(mark).repeated(Many);
    QTest::newRow("blanks") << u"a.md"_s << QByteArray(Many, ' ') + "a\n";
    QTest::newRow("heading") << u"a.md"_s << "# a" + QByteArray("# ").repeated(Many) + "a\n";
    QTest::newRow("empty lines") << u"a.note"_s
                                 << "<note><title>a</title><text><note-content>a" + QByteArray(Many, '\n') +
                                        "</note-content></text></note>";
    QTest::newRow("depth") << u"a.note"_s << "<note><title>" + QByteArray("<a>").repeated(Many);
}

void testNoteSources::nothingKeepsBusy()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, bytes);
    const QTemporaryDir home;
    put(home.filePath(path), bytes);
    QElapsedTimer timer;
    timer.start();
    const auto read = noteSources::ofFiles({home.filePath(path)});
    QCOMPARE(read.notes.size() + static_cast<size_t>(read.refused.size()), size_t(1));
    QVERIFY2(timer.elapsed() < 5000, "It takes too long");
}

QTEST_APPLESS_MAIN(testNoteSources)
#include "testNoteSources.moc"
