// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogChecks.h"
#include "dialogs/frmSettings.h"
#include "support/failOnWarnings.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTimeEdit>

using namespace Qt::StringLiterals;

namespace
{

const QDateTime Now(QDate(2026, 3, 1), QTime(12, 0));

clsNoteProps noteWithAll()
{
    clsNoteProps note;
    note.Data = u"text"_s;
    note.BackColor = 0x99FFFF;
    note.FontName = u"Sans"_s;
    note.FontSize = 12;
    note.PwdOn = true;
    note.Pwd = u"old"_s;
    note.AlarmOn = true;
    note.AlarmDateYear = 2026;
    note.AlarmDateMonth = 3;
    note.AlarmDateDay = 2;
    note.SoundFile = u"/a.wav"_s;
    note.SoundFileOn = true;
    return note;
}

} // namespace

class testSettingsDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everythingCanBeReadAndReached();
    void cancelled();
    void checks_data();
    void checks();
    void alarmWithoutADate();
    void alarmGoesOffMeanwhile_data();
    void alarmGoesOffMeanwhile();
    void passwordStaysWhenPromptIsCancelled();
    void hostileRecords_data();
    void hostileRecords();

private:
    Program &program() { return m_test->program; }
    void open(const clsNoteProps &note);

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<frmSettings> m_dialog;
};

void testSettingsDialog::init()
{
    failOnWarnings();
    m_test = std::make_unique<TestProgram>(Now);
    m_dialog = std::make_unique<frmSettings>(program(), nullptr);
}

void testSettingsDialog::cleanup()
{
    m_dialog.reset();
    QVERIFY(m_test->prompts.isDone());
}

void testSettingsDialog::open(const clsNoteProps &note)
{
    m_dialog->Initialize(note);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void testSettingsDialog::everythingCanBeReadAndReached()
{
    open(noteWithAll());
    checkPages(*m_dialog);
}

void testSettingsDialog::cancelled()
{
    clsNoteProps note = noteWithAll();
    open(note);
    m_test->choosers.colours = {QColor(Qt::red)};
    pressByKey(*m_dialog, "cmdForeColor");
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible() && !m_dialog->SettingsResult(note) && note == noteWithAll());
}

void testSettingsDialog::checks_data()
{
    QTest::addColumn<clsNoteProps>("note");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QByteArray>("focus");
    clsNoteProps note = noteWithAll();
    note.AlarmDateDay = 1;
    note.AlarmTimeHour = 11;
    note.AlarmTimeMinute = 59;
    QTest::newRow("a minute ago") << note << u"Alarm set failure"_s << QByteArray("dtpAlarmDate");
    note.AlarmOn = false;
    QTest::newRow("a minute ago, off") << note << QString() << QByteArray();
    note.AlarmOn = true;
    note.SoundFileOn = true;
    note.SoundFile.clear();
    QTest::newRow("sound first") << note << u"Alarm Sound Error"_s << QByteArray("cmdSoundFile");
    note.BackPicOn = true;
    QTest::newRow("picture first of all") << note << u"Background Picture Error"_s << QByteArray("cmdPicFile");
}

void testSettingsDialog::checks()
{
    QFETCH(clsNoteProps, note);
    QFETCH(QString, caption);
    QFETCH(QByteArray, focus);
    open(note);
    checkOk(*m_test, *m_dialog, caption, focus);
}

void testSettingsDialog::alarmWithoutADate()
{
    clsNoteProps note;
    open(note);
    QCOMPARE(control<QDateEdit>(*m_dialog, "dtpAlarmDate").date(), Now.date());
    control<QCheckBox>(*m_dialog, "chkAlarm").click();
    control<QTimeEdit>(*m_dialog, "dtpAlarmTime").setTime(QTime(12, 0, 1));
    press(*m_dialog, "cmdOK");
    QVERIFY(m_dialog->SettingsResult(note));
    QVERIFY(note.AlarmOn && note.AlarmDateYear == 2026 && note.AlarmDateMonth == 3 && note.AlarmDateDay == 1);
    QVERIFY(note.AlarmTimeHour == 12 && note.AlarmTimeSecond == 1);
}

void testSettingsDialog::alarmGoesOffMeanwhile_data()
{
    QTest::addColumn<QByteArray>("switched");
    QTest::addColumn<int>("year"); // set in the dialog, none where 0
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("onAgain");
    QTest::newRow("untouched") << QByteArray() << 0 << QString() << false;
    QTest::newRow("switched off") << QByteArray("chkAlarm") << 0 << QString() << false;
    QTest::newRow("set anew") << QByteArray() << 2027 << QString() << true;
    QTest::newRow("set to the past") << QByteArray() << 2025 << u"Alarm set failure"_s << false;
}

void testSettingsDialog::alarmGoesOffMeanwhile()
{
    QFETCH(QByteArray, switched);
    QFETCH(int, year);
    QFETCH(QString, caption);
    clsNoteProps note = noteWithAll();
    open(note);
    m_test->clock.advance(3 * 86400);
    // It moves to the desktop, where its sound file is missed.
    note.AlarmOn = note.SoundFileOn = false;
    note.FlashOn = true;
    m_test->choosers.colours = {QColor(Qt::red)};
    press(*m_dialog, "cmdForeColor");
    if (!switched.isEmpty())
        control<QCheckBox>(*m_dialog, switched.constData()).click();
    if (year != 0)
        control<QDateEdit>(*m_dialog, "dtpAlarmDate").setDate(QDate(year, 1, 31));
    checkOk(*m_test, *m_dialog, caption, "dtpAlarmDate");
    if (!caption.isEmpty())
        return;
    QVERIFY(m_dialog->SettingsResult(note));
    QTEST(note.AlarmOn, "onAgain");
    QCOMPARE(note.AlarmDateDay, year != 0 ? 31 : 2);
    QVERIFY(note.ForeColor == 0xFF && note.FlashOn && !note.SoundFileOn);
}

void testSettingsDialog::passwordStaysWhenPromptIsCancelled()
{
    open(noteWithAll());
    answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) { press(prompt, "CancelButton"); });
    m_test->prompts.expect(Prompts::Answer::Ok);
    control<QCheckBox>(*m_dialog, "chkPwd").click();
    QCOMPARE(m_test->prompts.last.caption, u"Disabling failed"_s);
    QVERIFY(control<QCheckBox>(*m_dialog, "chkPwd").isChecked());
}

void testSettingsDialog::hostileRecords_data()
{
    QTest::addColumn<float>("fontSize");
    QTest::addColumn<int>("year");
    QTest::newRow("zero") << 0.0F << 0;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << -1;
    QTest::newRow("huge") << std::numeric_limits<float>::max() << 32767;
    QTest::newRow("endless") << -std::numeric_limits<float>::infinity() << -32768;
}

void testSettingsDialog::hostileRecords()
{
    QFETCH(float, fontSize);
    QFETCH(int, year);
    clsNoteProps note = noteWithAll();
    note.FontSize = fontSize;
    note.FontName = QString(100'000, u'W');
    note.PicFile = QString(100'000, u'/');
    note.AlarmDateYear = static_cast<qint16>(year);
    note.AlarmDateMonth = -7;
    note.AlarmTimeHour = 99;
    open(note);
    checkPages(*m_dialog);
    QVERIFY(m_dialog->width() < 800 && control<QLabel>(*m_dialog, "lblFontName").text().endsWith(u"..."));
}

QTEST_MAIN(testSettingsDialog)
#include "testSettingsDialog.moc"
