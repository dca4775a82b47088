// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "Runs.h"
#include "model/modStreams.h"
#include "support/compareRow.h"
#include "support/rows.h"

using namespace Qt::StringLiterals;

namespace
{

QByteArray record(const QString &text)
{
    return modStreams::EncodeNoteRecord(taggedNote(1, text));
}

const Journal Sample{
    journalFile::digestOf("the data file"),
    {{journalFile::digestOf("what is stored"), record(u"changed"_s)}, {{}, record(u"new"_s)}, {{}, record({})}}};

/// With the digest that belongs to it, so that what lies behind is read.
QByteArray sealed(const QByteArray &content)
{
    return content + journalFile::digestOf(content);
}

/// Words, from the newest record to the oldest.
QByteArray dataFile(const QString &texts)
{
    DataImage image;
    qint32 tag = 0;
    for (const QString &text : texts.split(u' ', Qt::SkipEmptyParts))
        image.keepLoaded(++tag, record(text));
    return image.bytes();
}

/// "was>is" for a note that was changed, ">is" for a new one.
QByteArray journal(const QByteArray &file, const QString &changes)
{
    Journal journal{journalFile::digestOf(file), {}};
    for (const QString &change : changes.split(u' ', Qt::SkipEmptyParts)) {
        const QString was = change.section(u'>', 0, 0);
        journal.entries.push_back(
            {was.isEmpty() ? QByteArray() : journalFile::digestOf(record(was)), record(change.section(u'>', 1))});
    }
    return journalFile::encode(journal);
}

} // namespace

/// The bytes of the journal, and what a start makes of it.
class testJournalFile final : public QObject
{
    Q_OBJECT

private slots:
    void thereAndBack()
    {
        const auto read = journalFile::decode(journalFile::encode(Sample));
        QVERIFY(read && read.value() == Sample);
        QCOMPARE(journalFile::encode({}), QByteArray());
        QVERIFY(journalFile::decode({}).value().entries.empty());
    }

    void flaws_data()
    {
        const Rows<QByteArray, JournalFlaw> row; // bytes, flaw
        constexpr qsizetype Version = 16;
        constexpr qsizetype Count = 36;
        constexpr qsizetype FirstLength = 56;
        QCOMPARE(Sample.entries.front().record.size(), 116);
        const QByteArray content = journalFile::encode(Sample).chopped(journalFile::DigestLength);
        const auto patch = [&](const char *name, qsizetype position, qint32 value, JournalFlaw flaw) {
            QByteArray bytes = content;
            modStreams::WriteLong(value, position, bytes);
            row(name, sealed(bytes), flaw);
        };
        row("another kind of file", sealed(QByteArray(200, 'x')), JournalFlaw::Foreign);
        patch("later version", Version, 2, JournalFlaw::Foreign);
        patch("too many entries", Count, 4, JournalFlaw::Cut);
        patch("two thousand million entries", Count, 0x7FFFFFFF, JournalFlaw::Cut);
        patch("too few entries", Count, 2, JournalFlaw::Longer);
        patch("negative count", Count, -1, JournalFlaw::NoNote);
        row("no entries", sealed(content.first(Count) + QByteArray(4, '\0')), JournalFlaw::NoNote);
        patch("huge record", FirstLength, 0x7FFFFFFF, JournalFlaw::Cut);
        patch("negative record", FirstLength, -1, JournalFlaw::Cut);
        patch("record of no bytes", FirstLength, 0, JournalFlaw::NoNote);
        patch("record cut", FirstLength, 115, JournalFlaw::NoNote);
        patch("record too long", FirstLength, 117, JournalFlaw::NoNote);
        row("bytes behind", sealed(content + '\0'), JournalFlaw::Longer);
        row("another digest", content + journalFile::digestOf("else"), JournalFlaw::Changed);
    }

    void flaws()
    {
        const auto [bytes, flaw] = fetchRow<QByteArray, JournalFlaw>();
        const auto read = journalFile::decode(bytes);
        QVERIFY(!read);
        QCOMPARE(read.error(), flaw);
    }

    /// As it is, and with a digest that fits.
    void everyTruncation()
    {
        const QByteArray whole = journalFile::encode(Sample);
        for (qsizetype length = 1; length < whole.size(); ++length)
            QVERIFY2(!journalFile::decode(whole.first(length)), qPrintable(QString::number(length)));
        for (qsizetype length = 0; length < whole.size() - journalFile::DigestLength; ++length)
            QVERIFY2(!journalFile::decode(sealed(whole.first(length))), qPrintable(QString::number(length)));
    }

    void everyByteChanged()
    {
        const QByteArray whole = journalFile::encode(Sample);
        for (qsizetype at = 0; at < whole.size(); ++at) {
            QByteArray bytes = whole;
            bytes[at] = static_cast<char>(bytes[at] ^ 1);
            QVERIFY2(!journalFile::decode(bytes), qPrintable(QString::number(at)));
        }
    }

    /// What was saved meanwhile is not brought back again, although the journal is still there.
    void replay()
    {
        struct Outcomes
        {
            QString shown;
            int broughtBack;
            QString stored{};
            int room = 100;
        };
        const auto later = [](const char *name, const QString &then, const QString &file, const QString &changes,
                              const Outcomes &expected) {
            const QByteArray written = journal(dataFile(then), changes);
            Runs runs;
            runs.setDataFile(dataFile(file));
            setContents(runs.paths.JournalFile, written);
            runs.start(expected.room);
            compareRow(name, runs.texts(), expected.shown);
            compareRow(name, runs.report.broughtBack, expected.broughtBack);
            QVERIFY2(runs.backup() == dataFile(file) && runs.dataFile() == dataFile(file), name);
            QVERIFY2(runs.state.unsaved == (expected.broughtBack > 0) && runs.report.keptAside.isEmpty(), name);
            QVERIFY2(modFileIO::flush(runs.state).ok() && runs.state.carried.empty(), name);
            runs.start();
            compareRow(name, runs.texts(), expected.stored.isEmpty() ? expected.shown : expected.stored);
            QVERIFY2(runs.report.broughtBack == 0 && contents(runs.paths.JournalFile) == written, name);
        };
        const auto row = [&later](const char *name, const QString &file, const QString &changes,
                                  const Outcomes &expected) { later(name, file, file, changes, expected); };
        row("nothing", u"a b"_s, {}, {u"a b"_s, 0});
        row("changed", u"a b c"_s, u"b>B"_s, {u"a B c"_s, 1});
        row("new", u"a b"_s, u">n >m"_s, {u"m n a b"_s, 2});
        row("new, no file", {}, u">n"_s, {u"n"_s, 1});
        row("all of it", u"a b"_s, u"a>A >n b>B"_s, {u"n A B"_s, 3});
        row("new one like a stored one", u"n a"_s, u">n"_s, {u"n n a"_s, 1});
        later("stored meanwhile", u"a b"_s, u"a B"_s, u"b>B"_s, {u"a B"_s, 0});
        later("new one stored meanwhile", u"a"_s, u"n a"_s, u">n"_s, {u"n a"_s, 0});
        later("one of two alike stored meanwhile", u"a a"_s, u"a A"_s, u"a>A"_s, {u"a A"_s, 0});
        later("one of two changes stored", u"a b"_s, u"A b"_s, u"a>A b>B"_s, {u"A B"_s, 1});
        later("an earlier version of it stored", u"a"_s, u"A"_s, u"a>B"_s, {u"B A"_s, 1});
        row("written back as it was stored before", u"a b"_s, u"a>b"_s, {u"b b"_s, 1});
        row("what it replaces is gone", u"a"_s, u"b>B"_s, {u"B a"_s, 1});
        row("two alike, one changed", u"a a"_s, u"a>A"_s, {u"a A"_s, 1});
        row("two alike, both changed", u"a a"_s, u"a>A a>B"_s, {u"B A"_s, 2});
        row("one, changed twice", u"a"_s, u"a>A a>B"_s, {u"B A"_s, 2});
        later("two new ones alike, one stored", {}, u"n"_s, u">n >n"_s, {u"n n"_s, 1});
        row("no room for a new one", u"a b"_s, u">n a>A"_s, {u"A b"_s, 2, u"A b n"_s, 2});
        row("changed beyond the room", u"a b"_s, u"b>B"_s, {u"a"_s, 1, u"a B"_s, 1});
    }

    /// The journal waits until its notes can be stored with those of the file.
    void unreadableDataFile()
    {
        const QByteArray changes = journal({}, u"a>A >n"_s);
        Runs runs;
        runs.spoilDataFile();
        setContents(runs.paths.JournalFile, changes);
        runs.start();
        QCOMPARE(runs.state.carried.size(), size_t(2));
        QVERIFY(runs.save(7, u"new"_s).kind == WriteResult::Kind::Failed);
        QVERIFY(runs.state.carried.size() == 2 && contents(runs.paths.JournalFile) == changes);
        runs.healDataFile();
        runs.setDataFile(dataFile(u"a b"_s));
        QVERIFY(modFileIO::flush(runs.state).ok() && runs.state.carried.empty());
        runs.start();
        QCOMPARE(runs.texts(), u"new n A b"_s);
    }

    void flawedJournal()
    {
        const QByteArray cut = journal(dataFile(u"a"_s), u"a>A"_s).chopped(1);
        Runs runs;
        setContents(runs.paths.JournalFile, cut);
        runs.startWith(dataFile(u"a"_s));
        QVERIFY(runs.texts() == u"a" && runs.report.broughtBack == 0 && !QFile::exists(runs.paths.JournalFile));
        QCOMPARE(runs.report.keptAside,
                 QStringList(runs.paths.DataFolder + u"/quillets-2026-11-22-221530-damaged.jnl"_s));
        QCOMPARE(contents(runs.report.keptAside.constFirst()), cut);
    }
};

QTEST_APPLESS_MAIN(testJournalFile)
#include "testJournalFile.moc"
