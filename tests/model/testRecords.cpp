// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsAlarmProps.h"
#include "model/clsPwdProps.h"
#include "model/clsSettingsProps.h"
#include "model/modCopyObject.h"
#include "model/modStreams.h"
#include "samples.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QDateTime>

#include <bit>

using namespace Qt::StringLiterals;
using namespace modCopyObject;
using namespace modStreams;

namespace
{

/// How many properties of an empty note a copy of a full one changes.
int changedBy(void (*copy)(const clsNoteProps &, clsNoteProps &))
{
    clsNoteProps target;
    copy(fullNote(), target);
    return std::apply([&](auto... field) { return (int(target.*field != clsNoteProps().*field) + ...); },
                      allNoteFields);
}

template <auto Out, auto Back, class Narrow> void through(const clsNoteProps &from, clsNoteProps &to)
{
    Narrow narrow;
    Out(from, narrow);
    Back(narrow, to);
}

void fromOptions(const clsNoteProps &, clsNoteProps &to)
{
    clsprogramoptions options;
    fill(options, recordFields::options);
    CopyOptionsToNote(options, to);
}

} // namespace

/// The records of notes: from one to another, to bytes and back.
class testRecords final : public QObject
{
    Q_OBJECT

private slots:
    void copiesTouchTheirListOnly()
    {
        compareRow("password", changedBy(through<CopyNoteToPwd, CopyPwdToNote, clsPwdProps>), 5);
        compareRow("alarm", changedBy(through<CopyNoteToAlarm, CopyAlarmToNote, clsAlarmProps>), 10);
        compareRow("settings", changedBy(through<CopyNoteToSettings, CopySettingsToNote, clsSettingsProps>), 22);
        compareRow("options", changedBy(fromOptions), 17);
        compareRow("note, without comments and mark", changedBy(CopyNote), 36);
    }

    void goldenBytes()
    {
        const auto row = [](const char *name, const clsNoteProps &note, qsizetype position, const QByteArray &hex) {
            compareRow(name, EncodeNoteRecord(note).sliced(position, hex.size() / 2).toHex(), hex);
        };
        row("all", {}, 0, QByteArray(204, '0'));
        row("title", {.TitleBarTitle = u"Hi"_s}, 70, "0400000048006900");
        row("on top", {.OnTopOn = true}, 0, "0000ffff0000");
        row("italic is the last switch", {.FontItalicOn = true}, 22, "0000ffff0000");
        row("month first, day last",
            {.AlarmDateDay = 22, .AlarmDateMonth = 11, .AlarmDateYear = 2026, .AlarmTimeHour = 8}, 26,
            "0b00ea0708000000000016000000");
        row("colours", {.ForeColor = qint32(0x80000012), .BackColor = 0xFFFF}, 38, "12000080ffff0000");
        row("height", {.FrmHeight = 1440}, 46, "000000000000b44400000000");
        row("comments last", {.Comments = u"\u00e9"_s}, 94, "0000000002000000e900");
        QByteArray wire("header");
        EncodeSendRecord({}, wire);
        QCOMPARE(wire, QByteArray("header") + QByteArray(40, '\0'));
    }

    void givesEveryStoredPropertyBack()
    {
        const QByteArray record = EncodeNoteRecord(fullNote());
        const auto decoded = DecodeNoteRecord("before" + record + "after", 6, {});
        clsNoteProps expected = fullNote();
        expected.Tag = expected.SaveTag = 0;
        expected.TempTitle.clear();
        QVERIFY(decoded.ok() && decoded.value().note == expected);
        QCOMPARE(decoded.value().length, record.size());
    }

    void keepsOddTextsAndNumbers()
    {
        clsNoteProps note;
        note.FrmTop = std::bit_cast<float>(0x7FC12345U);
        note.FrmLeft = -std::numeric_limits<float>::infinity();
        note.Data = QString(u'\0') + QChar(0xDC00) + u'x' + QChar(0xD800) + QString(u'\0');
        QByteArray record = EncodeNoteRecord(note);
        const clsNoteProps decoded = DecodeNoteRecord(record, 0, {}).value().note;
        QCOMPARE(decoded.Data, note.Data);
        QCOMPARE(EncodeNoteRecord(decoded), record);
        record[1] = 1; // Another true than -1.
        QVERIFY(DecodeNoteRecord(record, 0, {}).value().note.PwdOn);
    }

    void refuses_data()
    {
        const Rows<qsizetype, qint32, StreamError> row; // start, length of the title, flaw
        row("before the file", -1, 0, StreamError::StartOutOfRange);
        row("behind the file", 103, 0, StreamError::StartOutOfRange);
        row("at the end", 102, 0, StreamError::Truncated);
        row("negative", 0, -2, StreamError::NegativeLength);
        row("odd", 0, 3, StreamError::OddLength);
        row("one past the end", 0, 30, StreamError::Truncated);
        row("huge", 0, 0x7FFFFFFE, StreamError::Truncated);
    }

    void refuses()
    {
        const auto [start, titleLength, flaw] = fetchRow<qsizetype, qint32, StreamError>();
        QByteArray record = EncodeNoteRecord({});
        qsizetype position = 70;
        WriteLong(titleLength, position, record);
        const auto decoded = DecodeNoteRecord(record, start, {});
        const auto measured = measureNoteRecord(record, start);
        QVERIFY(!decoded && decoded.error() == flaw && !measured && measured.error() == flaw);
    }

    void completesReceivedRecord()
    {
        clsNoteProps sent = fullNote();
        sent.DateCreated = u"1/2"_s;
        QByteArray packet("header");
        EncodeSendRecord(sent, packet);
        const clsNoteProps noteTemplate{.FlashOn = true, .Comments = u"none of these"_s};
        const QDateTime arrival(QDate(2031, 12, 24), QTime(18, 30, 59));
        const auto received = [&](const QString &identity, const QString &name) {
            return DecodeReceivedRecord(packet, 6, identity, name, arrival, noteTemplate).value();
        };
        const auto [note, length] = received(u" pc1 "_s, u" Ann"_s);
        compareRow("both", note.DateCreated, u"1/2 (Ann, pc1)"_s);
        compareRow("identity", received(u"pc1"_s, u"  "_s).note.DateCreated, u"1/2 (pc1)"_s);
        compareRow("name", received({}, u"%1 Ann"_s).note.DateCreated, u"1/2 (%1 Ann)"_s);
        compareRow("neither", received(u" "_s, {}).note.DateCreated, u"1/2"_s);
        QVERIFY(note.Data == sent.Data && note.FrmWidth == sent.FrmWidth);
        QVERIFY(note.AlarmOn && note.AlarmDateDay == 24 && note.AlarmDateMonth == 12 && note.AlarmDateYear == 2031);
        QVERIFY(note.AlarmTimeHour == 18 && note.AlarmTimeMinute == 30 && note.AlarmTimeSecond == 59);
        QVERIFY(note.FlashOn && note.Comments.isEmpty() && note.FrmLeft == 0);
        QCOMPARE(length, packet.size() - 6);
    }
};

QTEST_APPLESS_MAIN(testRecords)
#include "testRecords.moc"
