// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/frmAlarmSettings.h"
#include "support/TestProgram.h"
#include "support/answerDialog.h"
#include "support/failOnWarnings.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace
{

const QDateTime Noon(QDate(2026, 3, 1), QTime(12, 0));

clsNoteProps alarmOfTomorrow()
{
    clsNoteProps record;
    record.AlarmOn = true;
    record.AlarmDateYear = 2026;
    record.AlarmDateMonth = 3;
    record.AlarmDateDay = 2;
    record.AlarmTimeHour = 8;
    record.FlashOn = true;
    return record;
}

/// The dialog, opened for a note.
struct Opened
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
        test.prompts.expect(Prompts::Answer::Ok);
        click("OKButton");
        return dialog.isVisible() && test.prompts.isDone() && result() == record &&
               test.prompts.last == Message{text, caption, Message::Icon::Critical};
    }

    TestProgram test{Noon};
    clsNoteProps record;
    frmAlarmSettings dialog{test.program, nullptr};
};

} // namespace

class testAlarmDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void newAlarmNeedsTheFuture();
    void soundNeedsAFile();
    void okGivesTheAlarmBack();
    void onlyWhatWasChangedIsWritten();
    void typedAsWritten_data();
    void typedAsWritten();
    void oldAlarmMayBeSwitchedOff();
    void cancelChangesNothing();
    void impossibleDateIsShownAsNearest();
    void soundFiles_data();
    void soundFiles();
};

void testAlarmDialog::newAlarmNeedsTheFuture()
{
    Opened opened(clsNoteProps{});
    opened.click("chkAlarm");
    QVERIFY(opened.refuses(u"You need to choose an alarm time in the future"_s, u"Alarm set failure"_s));
    opened.time().setTime(QTime(12, 0, 1));
    opened.click("OKButton");
    QVERIFY(!opened.dialog.isVisible());
    QVERIFY(opened.result().AlarmOn);
    QCOMPARE(opened.result().AlarmTimeSecond, 1);
}

void testAlarmDialog::soundNeedsAFile()
{
    Opened opened(alarmOfTomorrow());
    opened.click("chkSoundFile");
    QVERIFY(opened.refuses(u"You have selected to play a sound for the alarm.\nPlease enter a valid sound file."_s,
                           u"Alarm Sound Error"_s));
    QCOMPARE(opened.dialog.focusWidget()->objectName(), u"cmdSoundFile"_s);
}

void testAlarmDialog::okGivesTheAlarmBack()
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
    expected.AlarmDateYear = 2027;
    expected.AlarmDateMonth = 12;
    expected.AlarmDateDay = 31;
    expected.AlarmTimeHour = 23;
    expected.AlarmTimeMinute = 58;
    expected.AlarmTimeSecond = 59;
    expected.FlashOn = false;
    expected.SoundFileOn = true;
    expected.SoundFile = u"/sounds/ring.wav"_s;
    QVERIFY(opened.result() == expected);
}

void testAlarmDialog::onlyWhatWasChangedIsWritten()
{
    Opened opened(alarmOfTomorrow());
    opened.record.SoundFileOn = true; // by a move meanwhile
    opened.record.FlashOn = false;
    opened.record.AlarmOn = false;
    opened.date().setDate(QDate(2027, 3, 2));
    opened.click("OKButton");
    const clsNoteProps result = opened.result();
    QVERIFY(result.SoundFileOn && !result.FlashOn);
    QVERIFY(result.AlarmOn && result.AlarmDateYear == 2027 && result.AlarmTimeHour == 8);
}

void testAlarmDialog::oldAlarmMayBeSwitchedOff()
{
    clsNoteProps record = alarmOfTomorrow();
    record.AlarmDateYear = 2020;
    record.SoundFileOn = true;
    Opened opened(record);
    opened.click("chkAlarm");
    opened.click("OKButton");
    QVERIFY(!opened.dialog.isVisible() && !opened.result().AlarmOn);
}

void testAlarmDialog::cancelChangesNothing()
{
    Opened opened(alarmOfTomorrow());
    opened.date().setDate(QDate(2028, 1, 1));
    opened.click("chkAlarm");
    opened.click("CancelButton");
    QVERIFY(!opened.dialog.isVisible() && !opened.dialog.isAccepted());
    QVERIFY(opened.result() == opened.record);
}

void testAlarmDialog::impossibleDateIsShownAsNearest()
{
    clsNoteProps record = alarmOfTomorrow();
    record.AlarmDateDay = 31;
    record.AlarmDateMonth = 14;
    record.AlarmTimeHour = -3;
    Opened opened(record);
    QCOMPARE(opened.date().date(), QDate(2026, 12, 31));
    opened.click("OKButton");
    QCOMPARE(opened.result().AlarmDateMonth, 12);
    QCOMPARE(opened.result().AlarmTimeHour, 0);
}

void testAlarmDialog::soundFiles_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<std::optional<QString>>("chosen");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("after");
    using Chosen = std::optional<QString>;
    QTest::newRow("wave file") << u""_s << Chosen(u"/a.wav"_s) << true << u"/a.wav"_s;
    QTest::newRow("capitals") << u"/a.wav"_s << Chosen(u"/B.WAV"_s) << false << u"/a.wav"_s;
    QTest::newRow("other kind") << u""_s << Chosen(u"/b.mp3"_s) << false << u""_s;
    QTest::newRow("cancelled, none before") << u""_s << Chosen() << false << u""_s;
    QTest::newRow("cancelled") << u"/a.wav"_s << Chosen() << true << u"/a.wav"_s;
    QTest::newRow("ampersand") << u""_s << Chosen(u"/a&b&c.wav"_s) << true << u"/a&b&c.wav"_s;
}

void testAlarmDialog::soundFiles()
{
    QFETCH(QString, before);
    QFETCH(std::optional<QString>, chosen);
    QFETCH(bool, accepted);
    clsNoteProps record = alarmOfTomorrow();
    record.SoundFile = before;
    Opened opened(record);
    opened.test.choosers.files = {chosen};
    if (!accepted)
        opened.test.prompts.expect(Prompts::Answer::Ok);
    opened.click("cmdSoundFile");
    QVERIFY(opened.test.prompts.isDone());
    if (!accepted)
        QVERIFY((opened.test.prompts.last == Message{u"Invalid sound file."_s, u"Error"_s, Message::Icon::Critical}));
    opened.click("OKButton");
    QTEST(opened.result().SoundFile, "after");
    const QString caption = control<QPushButton>(opened.dialog, "cmdSoundFile").text().replace(u"&&"_s, u"&"_s);
    QCOMPARE(caption, opened.result().SoundFile.isEmpty() ? u"Choose file"_s : opened.result().SoundFile);
}

void testAlarmDialog::typedAsWritten_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::newRow("separators") << u"06/20/2032"_s << u"14:45:09"_s;
    QTest::newRow("one digit") << u"6/2/2032"_s << u"9:05:00"_s;
    QTest::newRow("digits alone") << u"06202032"_s << u"144509"_s;
}

void testAlarmDialog::typedAsWritten()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    Opened opened(alarmOfTomorrow());
    QVERIFY(QTest::qWaitForWindowActive(&opened.dialog));
    opened.date().setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&opened.date(), date);
    QCOMPARE(opened.date().date(), QDate(2032, 6, date.startsWith(u"06") ? 20 : 2));
    opened.time().setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&opened.time(), time);
    QCOMPARE(opened.time().time(), time.startsWith(u'9') ? QTime(9, 5) : QTime(14, 45, 9));
    // Wherever the caret is, digits overwrite.
    QTest::keyClick(&opened.time(), Qt::Key_Home);
    QTest::keyClicks(&opened.time(), u"07"_s);
    QCOMPARE(opened.time().time().hour(), 7);
}

QTEST_MAIN(testAlarmDialog)
#include "testAlarmDialog.moc"
