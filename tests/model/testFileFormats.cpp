// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/DataImage.h"
#include "model/DataSurvey.h"
#include "model/modFileIO.h"
#include "model/modStreams.h"
#include "model/windowState.h"
#include "samples.h"

using namespace Qt::StringLiterals;

namespace
{

/// The bytes of the dump under a heading of docs/file-formats.md.
QByteArray documented(const char *file)
{
    const QByteArray page = contents(QStringLiteral(TEST_DATA "/../../docs/file-formats.md"));
    const qsizetype begin = page.indexOf("```\n", page.indexOf(QByteArray("\n## ") + file)) + 4;
    QByteArray bytes;
    for (const QByteArray &line : page.sliced(begin, page.indexOf("```", begin) - begin).split('\n'))
        bytes += QByteArray::fromHex(line.mid(10, 47));
    return bytes;
}

} // namespace

/// What the page on the program's files shows is what the program reads and writes.
class testFileFormats final : public QObject
{
    Q_OBJECT

private slots:
    void notes()
    {
        const QByteArray file = documented("quillets.dat");
        const DataSurvey survey = surveyDataFile(file, {}, 100);
        QVERIFY(!survey.isDamaged && survey.notes.size() == 1);
        const clsNoteProps &note = survey.notes[0].note;
        QCOMPARE(note.Data, u"2 l milk"_s);
        QVERIFY(note.FlashOn && note.ToolBarOn && note.FrmHeight == 1440 && note.FrmWidth == 2160);
        DataImage image;
        QVERIFY(image.keepLoaded(1, modStreams::EncodeNoteRecord(note)));
        QCOMPARE(image.bytes(), file);
    }

    void journal()
    {
        const QByteArray dataFile = documented("quillets.dat");
        const DataSurvey survey = surveyDataFile(dataFile, {}, 100);
        const QByteArray file = documented("quillets.jnl");
        const Journal journal = journalFile::decode(file).value();
        QVERIFY(journal.file == journalFile::digestOf(dataFile) && journal.entries.size() == 1);
        QCOMPARE(journal.entries[0].base, journalFile::digestOf(survey.records().front()));
        QCOMPARE(modStreams::DecodeNoteRecord(journal.entries[0].record, 0, {}).value().note.Data, u"3 l milk"_s);
        QCOMPARE(journalFile::encode(journal), file);
    }

    void options()
    {
        const QByteArray file = documented("quillets.set");
        clsprogramoptions options;
        modStreams::ParseOptionsText(file, options);
        QVERIFY(options.NameName == u"Zo\u00EB" && options.FontSize == 8.25F && options.ListeningPort == 1420);
        QCOMPARE(modStreams::BuildOptionsText(options), file);
    }

    void recentLists()
    {
        const TestHome home;
        setContents(home.paths.MiscFile, documented("misc.set"));
        const QStringList email = modFileIO::LoadRecentList(home.paths, RecentList::Email);
        QCOMPARE(email, QStringList({u"ann@example.com"_s, u"bob@example.org"_s}));
        QVERIFY(modFileIO::SaveRecentList(home.paths, RecentList::Email, email, 2).ok());
        QCOMPARE(contents(home.paths.MiscFile), documented("misc.set"));
    }

    void window()
    {
        const QByteArray file = documented("window.set");
        const WindowState state = windowState::parse(file);
        QVERIFY(state.isShown && state.chosen == 0 && state.order.size() == 1 && state.geometry.size() == 66);
        QCOMPARE(windowState::text(state), file);
    }
};

QTEST_APPLESS_MAIN(testFileFormats)
#include "testFileFormats.moc"
