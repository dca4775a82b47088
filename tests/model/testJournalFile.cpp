// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/journalFile.h"
#include "model/modStreams.h"
#include "samples.h"

#include <QObject>

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

QByteArray content()
{
    return journalFile::encode(Sample).chopped(journalFile::DigestLength);
}

QByteArray withLong(qsizetype position, qint32 value)
{
    QByteArray bytes = content();
    modStreams::WriteLong(value, position, bytes);
    return sealed(bytes);
}

} // namespace

class testJournalFile final : public QObject
{
    Q_OBJECT

private slots:
    void thereAndBack();
    void flaws_data();
    void flaws();
    void everyTruncation();
    void everyByteChanged();
};

void testJournalFile::thereAndBack()
{
    const auto read = journalFile::decode(journalFile::encode(Sample));
    QVERIFY(read && read.value() == Sample);
    QCOMPARE(journalFile::encode({}), QByteArray());
    QVERIFY(journalFile::decode({}).value().entries.empty());
    QVERIFY(journalFile::digestOf("a") != journalFile::digestOf("b"));
}

void testJournalFile::flaws_data()
{
    constexpr qsizetype Version = 16;
    constexpr qsizetype Count = 36;
    constexpr qsizetype FirstLength = 56;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<JournalFlaw>("flaw");
    QTest::newRow("another kind of file") << sealed(QByteArray(200, 'x')) << JournalFlaw::Foreign;
    QTest::newRow("later version") << withLong(Version, 2) << JournalFlaw::Foreign;
    QTest::newRow("too many entries") << withLong(Count, 4) << JournalFlaw::Cut;
    QTest::newRow("two thousand million entries") << withLong(Count, 0x7FFFFFFF) << JournalFlaw::Cut;
    QTest::newRow("too few entries") << withLong(Count, 2) << JournalFlaw::Longer;
    QTest::newRow("negative count") << withLong(Count, -1) << JournalFlaw::NoNote;
    QTest::newRow("no entries") << sealed(content().first(Count) + QByteArray(4, '\0')) << JournalFlaw::NoNote;
    QTest::newRow("huge record") << withLong(FirstLength, 0x7FFFFFFF) << JournalFlaw::Cut;
    QTest::newRow("negative record") << withLong(FirstLength, -1) << JournalFlaw::Cut;
    QTest::newRow("record of no bytes") << withLong(FirstLength, 0) << JournalFlaw::NoNote;
    QTest::newRow("record cut") << withLong(FirstLength, 115) << JournalFlaw::NoNote;
    QTest::newRow("record too long") << withLong(FirstLength, 117) << JournalFlaw::NoNote;
    QTest::newRow("bytes behind") << sealed(content() + '\0') << JournalFlaw::Longer;
    QTest::newRow("another digest") << content() + journalFile::digestOf("else") << JournalFlaw::Changed;
}

void testJournalFile::flaws()
{
    QFETCH(QByteArray, bytes);
    QFETCH(JournalFlaw, flaw);
    QCOMPARE(Sample.entries.front().record.size(), 116);
    const auto read = journalFile::decode(bytes);
    QVERIFY(!read);
    QCOMPARE(read.error(), flaw);
}

/// As it is, and with a digest that fits.
void testJournalFile::everyTruncation()
{
    const QByteArray whole = journalFile::encode(Sample);
    for (qsizetype length = 1; length < whole.size(); ++length)
        QVERIFY2(!journalFile::decode(whole.first(length)), qPrintable(QString::number(length)));
    for (qsizetype length = 0; length < content().size(); ++length)
        QVERIFY2(!journalFile::decode(sealed(content().first(length))), qPrintable(QString::number(length)));
}

void testJournalFile::everyByteChanged()
{
    QByteArray bytes = journalFile::encode(Sample);
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
        QVERIFY2(!journalFile::decode(bytes), qPrintable(QString::number(at)));
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
    }
    QVERIFY(journalFile::decode(bytes));
}

QTEST_APPLESS_MAIN(testJournalFile)
#include "testJournalFile.moc"
