// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"
#include "samples.h"

#include <QDateTime>
#include <QObject>

#include <bit>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(StreamError)

class testStreams final : public QObject
{
    Q_OBJECT

private slots:
    void goldenBytes_data();
    void goldenBytes();
    void givesEveryStoredPropertyBack();
    void keepsOddTextsAndNumbers();
    void refuses_data();
    void refuses();
    void completesReceivedRecord_data();
    void completesReceivedRecord();
};

void testStreams::goldenBytes_data()
{
    QTest::addColumn<clsNoteProps>("note");
    QTest::addColumn<qsizetype>("position");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("title") << clsNoteProps{.TitleBarTitle = u"Hi"_s} << qsizetype(70)
                           << QByteArray::fromHex("0400000048006900");
    QTest::newRow("on top") << clsNoteProps{.OnTopOn = true} << qsizetype(0) << QByteArray::fromHex("0000ffff0000");
    QTest::newRow("italic is the last switch")
        << clsNoteProps{.FontItalicOn = true} << qsizetype(22) << QByteArray::fromHex("0000ffff0000");
    QTest::newRow("month first, day last")
        << clsNoteProps{.AlarmDateDay = 22, .AlarmDateMonth = 11, .AlarmDateYear = 2026, .AlarmTimeHour = 8}
        << qsizetype(26) << QByteArray::fromHex("0b00ea0708000000000016000000");
    QTest::newRow("colours") << clsNoteProps{.ForeColor = qint32(0x80000012), .BackColor = 0xFFFF} << qsizetype(38)
                             << QByteArray::fromHex("12000080ffff0000");
    QTest::newRow("height") << clsNoteProps{.FrmHeight = 1440} << qsizetype(46)
                            << QByteArray::fromHex("00000000"
                                                   "0000b444"
                                                   "00000000");
    QTest::newRow("comments last") << clsNoteProps{.Comments = u"\u00e9"_s} << qsizetype(94)
                                   << QByteArray::fromHex("0000000002000000e900");
}

void testStreams::goldenBytes()
{
    QFETCH(clsNoteProps, note);
    QFETCH(qsizetype, position);
    QFETCH(QByteArray, bytes);
    const QByteArray record = modStreams::EncodeNoteRecord(note);
    QCOMPARE(record.sliced(position, bytes.size()).toHex(' '), bytes.toHex(' '));
    QByteArray wire("header");
    modStreams::EncodeSendRecord({}, wire);
    QCOMPARE(wire, QByteArray("header") + QByteArray(40, '\0'));
    QCOMPARE(modStreams::EncodeNoteRecord({}), QByteArray(102, '\0'));
}

void testStreams::givesEveryStoredPropertyBack()
{
    const QByteArray record = modStreams::EncodeNoteRecord(fullNote());
    const auto decoded = modStreams::DecodeNoteRecord("before" + record + "after", 6, {});
    QVERIFY(decoded.ok());
    clsNoteProps expected = fullNote();
    expected.Tag = 0;
    expected.TempTitle.clear();
    expected.SaveTag = 0;
    QVERIFY(decoded.value().note == expected);
    QCOMPARE(decoded.value().length, record.size());
}

void testStreams::keepsOddTextsAndNumbers()
{
    clsNoteProps note;
    note.FrmTop = std::bit_cast<float>(0x7FC12345U);
    note.FrmLeft = -std::numeric_limits<float>::infinity();
    note.Data = QString(u'\0') + QChar(0xDC00) + u'x' + QChar(0xD800) + QString(u'\0');
    const QByteArray record = modStreams::EncodeNoteRecord(note);
    const auto decoded = modStreams::DecodeNoteRecord(record, 0, {});
    QVERIFY(decoded.ok());
    QCOMPARE(decoded.value().note.Data, note.Data);
    QCOMPARE(modStreams::EncodeNoteRecord(decoded.value().note), record);
    // Another true than -1 is read as well.
    QByteArray other = record;
    other[1] = 1;
    const auto switched = modStreams::DecodeNoteRecord(other, 0, {});
    QVERIFY(switched.ok() && switched.value().note.PwdOn);
}

void testStreams::refuses_data()
{
    QTest::addColumn<qsizetype>("start");
    QTest::addColumn<qint32>("titleLength");
    QTest::addColumn<StreamError>("flaw");
    QTest::newRow("before the file") << qsizetype(-1) << 0 << StreamError::StartOutOfRange;
    QTest::newRow("behind the file") << qsizetype(103) << 0 << StreamError::StartOutOfRange;
    QTest::newRow("at the end") << qsizetype(102) << 0 << StreamError::Truncated;
    QTest::newRow("negative") << qsizetype(0) << -2 << StreamError::NegativeLength;
    QTest::newRow("odd") << qsizetype(0) << 3 << StreamError::OddLength;
    QTest::newRow("one past the end") << qsizetype(0) << 30 << StreamError::Truncated;
    QTest::newRow("huge") << qsizetype(0) << 0x7FFFFFFE << StreamError::Truncated;
}

void testStreams::refuses()
{
    QFETCH(qsizetype, start);
    QFETCH(qint32, titleLength);
    QFETCH(StreamError, flaw);
    QByteArray record = modStreams::EncodeNoteRecord({});
    qsizetype position = 70;
    modStreams::WriteLong(titleLength, position, record);
    const auto decoded = modStreams::DecodeNoteRecord(record, start, {});
    QVERIFY(!decoded && decoded.error() == flaw);
    const auto measured = modStreams::measureNoteRecord(record, start);
    QVERIFY(!measured && measured.error() == flaw);
}

void testStreams::completesReceivedRecord_data()
{
    QTest::addColumn<QString>("identity");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("date");
    QTest::newRow("both") << u" pc1 "_s << u" Ann"_s << u"1/2 (Ann, pc1)"_s;
    QTest::newRow("identity") << u"pc1"_s << u"  "_s << u"1/2 (pc1)"_s;
    QTest::newRow("name") << QString() << u"%1 Ann"_s << u"1/2 (%1 Ann)"_s;
    QTest::newRow("neither") << u" "_s << QString() << u"1/2"_s;
}

void testStreams::completesReceivedRecord()
{
    QFETCH(QString, identity);
    QFETCH(QString, name);
    QFETCH(QString, date);
    clsNoteProps sent = fullNote();
    sent.DateCreated = u"1/2"_s;
    QByteArray packet("header");
    modStreams::EncodeSendRecord(sent, packet);
    clsNoteProps noteTemplate;
    noteTemplate.FlashOn = true;
    noteTemplate.Comments = u"none of these"_s;
    const QDateTime arrival(QDate(2031, 12, 24), QTime(18, 30, 59));
    const auto received = modStreams::DecodeReceivedRecord(packet, 6, identity, name, arrival, noteTemplate);
    QVERIFY(received.ok());
    const clsNoteProps &note = received.value().note;
    QCOMPARE(note.DateCreated, date);
    QCOMPARE(note.Data, sent.Data);
    QCOMPARE(note.FrmWidth, sent.FrmWidth);
    QVERIFY(note.AlarmOn && note.AlarmDateDay == 24 && note.AlarmDateMonth == 12 && note.AlarmDateYear == 2031);
    QVERIFY(note.AlarmTimeHour == 18 && note.AlarmTimeMinute == 30 && note.AlarmTimeSecond == 59);
    QVERIFY(note.FlashOn && note.Comments.isEmpty() && note.FrmLeft == 0);
    QCOMPARE(received.value().length, packet.size() - 6);
}

QTEST_APPLESS_MAIN(testStreams)
#include "testStreams.moc"
