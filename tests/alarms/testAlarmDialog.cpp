// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/frmAlarmSettings.h"
#include "alarms/modAlarm.h"
#include "support/ProgramFixture.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace
{

clsNoteProps alarmOfTomorrow()
{
    clsNoteProps record;
    record.AlarmOn = record.FlashOn = true;
    modAlarm::setAlarmDate(record, QDate(2026, 3, 2));
    modAlarm::setAlarmTime(record, QTime(8, 0));
    return record;
}

/// The dialog, opened for a note.
struct Opened : ProgramFixture
{
    explicit Opened(const clsNoteProps &note) : record(note)
    {
        dialog.Initialize(record);
        dialog.show();
    }

    QDateEdit &date() { return control<QDateEdit>(dialog, "dtpAlarmDate"); }
    QTimeEdit &time() { return control<QTimeEdit>(dialog, "dtpAlarmTime"); }
    void click(const char *button) { control<QAbstractButton>(dialog, button).click(); }
    /// The record as the note has it once the dialog is gone.
    clsNoteProps result() const
    {
        clsNoteProps taken = record;
        return dialog.AlarmResult(taken) ? taken : record;
    }
    bool refuses(const QString &text, const QString &caption)
    {
        const Message told = boxOf([this] { click("OKButton"); });
        return dialog.isVisible() && result() == record && told == Message{text, caption, Message::Icon::Critical};
    }

    clsNoteProps record;
    frmAlarmSettings dialog{program, nullptr};
};

} // namespace

class testAlarmDialog final : public QObject
{
    Q_OBJECT

private slots:
    void newAlarmNeedsTheFuture()
    {
        Opened opened(clsNoteProps{});
        opened.click("chkAlarm");
        QVERIFY(opened.refuses(u"You need to choose an alarm time in the future"_s, u"Alarm set failure"_s));
        opened.time().setTime(QTime(12, 0, 1));
        opened.click("OKButton");
        QVERIFY(!opened.dialog.isVisible() && opened.result().AlarmOn);
        QCOMPARE(modAlarm::nearestRealDate(opened.result()), QDate(2026, 3, 1));
        QCOMPARE(modAlarm::nearestRealTime(opened.result()), QTime(12, 0, 1));
    }

    void okGivesTheAlarmBack()
    {
        Opened opened(alarmOfTomorrow());
        opened.date().setDate(QDate(2027, 12, 31));
        opened.time().setTime(QTime(23, 58, 59));
        opened.test.choosers.files = {u"/sounds/ring.wav"_s};
        for (const char *button : {"chkFlash", "chkSoundFile", "cmdSoundFile", "OKButton"})
            opened.click(button);
        const FileRequest wanted{u"Open sound file"_s, {u"WAV Files (*.wav)"_s, u"All Files (*.*)"_s}, {}};
        QVERIFY(opened.test.choosers.lastRequest == wanted);

        clsNoteProps expected = alarmOfTomorrow();
        modAlarm::setAlarmDate(expected, QDate(2027, 12, 31));
        modAlarm::setAlarmTime(expected, QTime(23, 58, 59));
        expected.FlashOn = false;
        expected.SoundFileOn = true;
        expected.SoundFile = u"/sounds/ring.wav"_s;
        QVERIFY(opened.result() == expected);
    }

    void onlyWhatWasChangedIsWritten()
    {
        Opened opened(alarmOfTomorrow());
        opened.record.SoundFileOn = true; // by a move meanwhile
        opened.record.FlashOn = opened.record.AlarmOn = false;
        opened.date().setDate(QDate(2027, 3, 2));
        opened.click("OKButton");
        const clsNoteProps result = opened.result();
        QVERIFY(result.SoundFileOn && !result.FlashOn);
        QVERIFY(result.AlarmOn && result.AlarmDateYear == 2027 && result.AlarmTimeHour == 8);
    }

    void typedAsWritten_data()
    {
        const Rows<QString, QString, QDate, QTime> row; // typed, typed, date, time
        row("separators", u"06/20/2032"_s, u"14:45:09"_s, QDate(2032, 6, 20), QTime(14, 45, 9));
        row("one digit", u"6/2/2032"_s, u"9:05:00"_s, QDate(2032, 6, 2), QTime(9, 5));
        row("digits alone", u"06202032"_s, u"144509"_s, QDate(2032, 6, 20), QTime(14, 45, 9));
    }

    void typedAsWritten()
    {
        const auto [typedDate, typedTime, date, time] = fetchRow<QString, QString, QDate, QTime>();
        Opened opened(alarmOfTomorrow());
        QVERIFY(QTest::qWaitForWindowActive(&opened.dialog));
        opened.date().setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&opened.date(), typedDate);
        opened.time().setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&opened.time(), typedTime);
        QCOMPARE(opened.date().date(), date);
        QCOMPARE(opened.time().time(), time);
        // Wherever the caret is, digits overwrite.
        QTest::keyClick(&opened.time(), Qt::Key_Home);
        QTest::keyClicks(&opened.time(), u"07"_s);
        QCOMPARE(opened.time().time().hour(), 7);
    }

    void cancelChangesNothing()
    {
        Opened opened(alarmOfTomorrow());
        opened.date().setDate(QDate(2028, 1, 1));
        opened.click("chkAlarm");
        opened.click("CancelButton");
        QVERIFY(!opened.dialog.isVisible() && !opened.dialog.isAccepted());
        QVERIFY(opened.result() == opened.record);
    }

    void impossibleDateIsShownAsNearest()
    {
        clsNoteProps record = alarmOfTomorrow();
        record.AlarmDateMonth = 14;
        record.AlarmTimeHour = -3;
        Opened opened(record);
        opened.click("OKButton");
        QCOMPARE(opened.result().AlarmDateMonth, 12);
        QCOMPARE(opened.result().AlarmTimeHour, 0);
    }

    void soundFiles_data()
    {
        const Rows<QString, std::optional<QString>, bool, QString> row; // before, chosen, accepted, after
        row("wave file", {}, u"/a.wav"_s, true, u"/a.wav"_s);
        row("capitals", u"/a.wav"_s, u"/B.WAV"_s, false, u"/a.wav"_s);
        row("other kind", {}, u"/b.mp3"_s, false, {});
        row("cancelled, none before", {}, {}, false, {});
        row("cancelled", u"/a.wav"_s, {}, true, u"/a.wav"_s);
        row("ampersand", {}, u"/a&b&c.wav"_s, true, u"/a&b&c.wav"_s);
    }

    void soundFiles()
    {
        const auto [before, chosen, accepted, after] = fetchRow<QString, std::optional<QString>, bool, QString>();
        clsNoteProps record = alarmOfTomorrow();
        record.SoundFile = before;
        Opened opened(record);
        opened.test.choosers.files = {chosen};
        if (!accepted)
            opened.test.prompts.expect(Prompts::Answer::Ok);
        opened.click("cmdSoundFile");
        QVERIFY(opened.test.prompts.isDone());
        if (!accepted)
            QVERIFY(
                (opened.test.prompts.last == Message{u"Invalid sound file."_s, u"Error"_s, Message::Icon::Critical}));
        opened.click("OKButton");
        QCOMPARE(opened.result().SoundFile, after);
        const QString caption = control<QPushButton>(opened.dialog, "cmdSoundFile").text().replace(u"&&"_s, u"&"_s);
        QCOMPARE(caption, opened.result().SoundFile.isEmpty() ? u"Choose file"_s : opened.result().SoundFile);
    }
};

QTEST_MAIN(testAlarmDialog)
#include "testAlarmDialog.moc"
