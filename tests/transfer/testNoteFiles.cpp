// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/noteFiles.h"
#include "transfer/noteReaders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using noteFiles::Format;

/// Notes as files.
class testNoteFiles final : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void sameTitles();
    void markdownComesBack_data();
    void markdownComesBack();
    void againOverTheSameFolder();
    void failuresAreTold();
};

void testNoteFiles::names_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << u"Shopping"_s << u"Shopping"_s;
    QTest::newRow("other letters") << u"Café 東京"_s << u"Café 東京"_s;
    QTest::newRow("signs") << u"a/b\\c:d*e?f\"g<h>i|j"_s << u"a-b-c-d-e-f-g-h-i-j"_s;
    QTest::newRow("out of the folder") << u"../../etc/passwd"_s << u"-..-etc-passwd"_s;
    QTest::newRow("line ends") << u"a\r\nb\tc"_s << u"a--b-c"_s;
    QTest::newRow("nothing") << u" . "_s << u"note"_s;
    QTest::newRow("a device") << u"con"_s << u"note con"_s;
    QTest::newRow("a device with a suffix") << u"LPT1.txt"_s << u"note LPT1.txt"_s;
    QTest::newRow("hidden") << u".profile"_s << u"profile"_s;
    QTest::newRow("hidden behind a blank") << u".. .profile"_s << u"profile"_s;
    QTest::newRow("long") << u"x"_s.repeated(500) << u"x"_s.repeated(60);
    QTest::newRow("half a character") << u"x"_s.repeated(59) + u"\U0001F600"_s << u"x"_s.repeated(59);
}

void testNoteFiles::names()
{
    QFETCH(QString, title);
    const QString name = noteFiles::of({{title, u""_s}}, Format::Text).front().name;
    QVERIFY(name.endsWith(u".txt"));
    const QString stem = name.chopped(4);
    QTEST(stem, "name");
}

void testNoteFiles::sameTitles()
{
    QStringList names;
    for (const auto &file : noteFiles::of({{u"a"_s, u""_s}, {u"A"_s, u""_s}, {u"a"_s, u""_s}}, Format::Markdown))
        names.append(file.name);
    QCOMPARE(names, (QStringList{u"a.md"_s, u"A (2).md"_s, u"a (3).md"_s}));
}

void testNoteFiles::markdownComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << u"a\r\nb\r\n\r\nc"_s;
    QTest::newRow("tasks") << u"[ ] a\r\n  [x] b\r\nc"_s;
    QTest::newRow("line end at the end") << u"a\r\n"_s;
    QTest::newRow("nothing") << QString();
}

void testNoteFiles::markdownComesBack()
{
    QFETCH(QString, text);
    const auto files = noteFiles::of({{u"A title"_s, text}}, Format::Markdown);
    QCOMPARE(noteReaders::ofMarkdown(u"x"_s, files.front().bytes), (CarriedNote{u"A title"_s, text}));
}

void testNoteFiles::againOverTheSameFolder()
{
    const QTemporaryDir folder;
    const QDateTime date(QDate(2024, 2, 3), QTime(4, 5));
    std::vector<CarriedNote> notes{{u"one"_s, u"a\r\nb"_s, date}, {u"two"_s, u""_s}};
    const auto first = noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text));
    QCOMPARE(first.fresh.size(), size_t(2));
    QVERIFY(noteFiles::write(folder.path(), first.fresh));
    QFile written(folder.filePath(u"one.txt"_s));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), QByteArray("a\nb"));
    QCOMPARE(QFileInfo(written).lastModified(), date);
    QCOMPARE(noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text)).same, 2);
    notes[0].text = u"longer than before"_s;
    notes.push_back({u"three"_s, u"c"_s});
    const auto third = noteFiles::plan(folder.path(), noteFiles::of(notes, Format::Text));
    QCOMPARE(third.same, 1);
    QCOMPARE(third.different.front().name, u"one.txt"_s);
    QCOMPARE(third.fresh.front().name, u"three.txt"_s);
}

void testNoteFiles::failuresAreTold()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"one.txt"_s));
    const auto plan = noteFiles::plan(folder.path(), noteFiles::of({{u"one"_s, u"a"_s}}, Format::Text));
    QCOMPARE(plan.different.size(), size_t(1));
    const auto written = noteFiles::write(folder.path(), plan.different);
    QVERIFY(!written && !written.error().isEmpty());
}

QTEST_APPLESS_MAIN(testNoteFiles)
#include "testNoteFiles.moc"
