// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/frmAlarmSettings.h"
#include "support/TestProgram.h"
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

    template <class Control> Control *find(const char *name)
    {
        auto *control = dialog.findChild<Control *>(QLatin1String(name));
        if (control == nullptr)
            qFatal("No control %s", name);
        return control;
    }
    QCheckBox *box(const char *name) { return find<QCheckBox>(name); }
    QDateEdit *date() { return find<QDateEdit>("dtpAlarmDate"); }
    QTimeEdit *time() { return find<QTimeEdit>("dtpAlarmTime"); }
    QPushButton *button(const char *name) { return find<QPushButton>(name); }
    /// The record as the note has it once the dialog is gone.
    clsNoteProps result() const
    {
        clsNoteProps taken = record;
        dialog.AlarmResult(taken);
        return taken;
    }
    bool refuses(const QString &text, const QString &caption)
    {
        test.prompts.expect(Prompts::Answer::Ok);
        button("OKButton")->click();
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
    opened.box("chkAlarm")->click();
    QVERIFY(opened.refuses(u"You need to choose an alarm time in the future"_s, u"Alarm set failure"_s));
    opened.time()->setTime(QTime(12, 0, 1));
    opened.button("OKButton")->click();
    QVERIFY(!opened.dialog.isVisible());
    QVERIFY(opened.result().AlarmOn);
    QCOMPARE(opened.result().AlarmTimeSecond, 1);
}

void testAlarmDialog::soundNeedsAFile()
{
    Opened opened(alarmOfTomorrow());
    opened.box("chkSoundFile")->click();
    QVERIFY(opened.refuses(u"You have selected to play a sound for the alarm.\nPlease enter a valid sound file."_s,
                           u"Alarm Sound Error"_s));
    QCOMPARE(opened.dialog.focusWidget(), opened.button("cmdSoundFile"));
}

void testAlarmDialog::okGivesTheAlarmBack()
{
    Opened opened(alarmOfTomorrow());
    opened.date()->setDate(QDate(2027, 12, 31));
    opened.time()->setTime(QTime(23, 58, 59));
    opened.box("chkFlash")->click();
    opened.box("chkSoundFile")->click();
    opened.test.choosers.files = {u"/sounds/ring.wav"_s};
    opened.button("cmdSoundFile")->click();
    const FileRequest wanted{u"Open sound file"_s, {u"WAV Files (*.wav)"_s, u"All Files (*.*)"_s}, {}};
    QVERIFY(opened.test.choosers.lastRequest == wanted);
    opened.button("OKButton")->click();

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

void testAlarmDialog::oldAlarmMayBeSwitchedOff()
{
    clsNoteProps record = alarmOfTomorrow();
    record.AlarmDateYear = 2020;
    record.AlarmDateMonth = 14;
    record.AlarmDateDay = 31;
    record.AlarmTimeHour = -3;
    record.SoundFileOn = true;
    Opened opened(record);
    QCOMPARE(opened.date()->date(), QDate(2020, 12, 31));
    QCOMPARE(opened.time()->time(), QTime(0, 0));
    opened.box("chkAlarm")->click();
    opened.button("OKButton")->click();
    QVERIFY(!opened.dialog.isVisible() && !opened.result().AlarmOn);
}

void testAlarmDialog::cancelChangesNothing()
{
    Opened opened(alarmOfTomorrow());
    opened.date()->setDate(QDate(2028, 1, 1));
    opened.box("chkAlarm")->click();
    opened.button("CancelButton")->click();
    QVERIFY(!opened.dialog.isVisible());
    QVERIFY(opened.result() == opened.record);
}

void testAlarmDialog::impossibleDateIsShownAsNearest()
{
    clsNoteProps record = alarmOfTomorrow();
    record.AlarmDateDay = 31;
    record.AlarmDateMonth = 14;
    record.AlarmTimeHour = -3;
    Opened opened(record);
    QCOMPARE(opened.date()->date(), QDate(2026, 12, 31));
    opened.button("OKButton")->click();
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
    opened.button("cmdSoundFile")->click();
    QVERIFY(opened.test.prompts.isDone());
    if (!accepted)
        QVERIFY((opened.test.prompts.last == Message{u"Invalid sound file."_s, u"Error"_s, Message::Icon::Critical}));
    opened.button("OKButton")->click();
    QTEST(opened.result().SoundFile, "after");
    const QString caption = opened.button("cmdSoundFile")->text().replace(u"&&"_s, u"&"_s);
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
    Opened dialog(alarmOfTomorrow());
    QVERIFY(QTest::qWaitForWindowActive(&dialog.dialog));
    dialog.date()->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(dialog.date(), date);
    QCOMPARE(dialog.date()->date(), QDate(2032, 6, date.startsWith(u"06") ? 20 : 2));
    dialog.time()->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(dialog.time(), time);
    QCOMPARE(dialog.time()->time(), time.startsWith(u'9') ? QTime(9, 5) : QTime(14, 45, 9));
    // Wherever the caret is, digits overwrite.
    QTest::keyClick(dialog.time(), Qt::Key_Home);
    QTest::keyClicks(dialog.time(), u"07"_s);
    QCOMPARE(dialog.time()->time().hour(), 7);
}

QTEST_MAIN(testAlarmDialog)
#include "testAlarmDialog.moc"
