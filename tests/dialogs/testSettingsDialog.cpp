// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/modAlarm.h"
#include "dialogChecks.h"
#include "dialogs/frmSettings.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace
{

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
    modAlarm::setAlarmDate(note, QDate(2026, 3, 2));
    note.SoundFile = u"/a.wav"_s;
    note.SoundFileOn = true;
    return note;
}

} // namespace

class testSettingsDialog final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture.emplace();
        m_dialog = std::make_unique<frmSettings>(program(), nullptr);
    }

    void cleanup()
    {
        m_dialog.reset();
        m_fixture.reset();
    }

    void cancelled()
    {
        clsNoteProps note = noteWithAll();
        open(note);
        m_fixture->test.choosers.colours = {QColor(Qt::red)};
        pressByKey(*m_dialog, "cmdForeColor");
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible() && !m_dialog->SettingsResult(note) && note == noteWithAll());
    }

    void checks_data()
    {
        const Rows<clsNoteProps, QString, QByteArray> row; // note, caption, focus
        clsNoteProps note = noteWithAll();
        modAlarm::setAlarmDate(note, QDate(2026, 3, 1));
        modAlarm::setAlarmTime(note, QTime(11, 59));
        row("a minute ago", note, u"Alarm set failure"_s, "dtpAlarmDate");
        note.SoundFile.clear();
        row("sound first", note, u"Alarm Sound Error"_s, "cmdSoundFile");
        note.BackPicOn = true;
        row("picture first of all", note, u"Background Picture Error"_s, "cmdPicFile");
        note.AlarmOn = note.SoundFileOn = note.BackPicOn = false;
        row("a minute ago, off", note, {}, {});
    }

    void checks()
    {
        const auto [note, caption, focus] = fetchRow<clsNoteProps, QString, QByteArray>();
        open(note);
        checkOk(m_fixture->test, *m_dialog, caption, focus);
    }

    void alarmGoesOffMeanwhile_data()
    {
        const Rows<QByteArray, int, QString, bool> row; // switched, year, caption, onAgain
        row("untouched", {}, 0, {}, false);
        row("switched off", "chkAlarm", 0, {}, false);
        row("set anew", {}, 2027, {}, true);
        row("set to the past", {}, 2025, u"Alarm set failure"_s, false);
    }

    void alarmGoesOffMeanwhile()
    {
        const auto [switched, year, caption, onAgain] = fetchRow<QByteArray, int, QString, bool>();
        clsNoteProps note = noteWithAll();
        open(note);
        m_fixture->test.clock.advance(3 * 86400);
        // It moves to the desktop, where its sound file is missed.
        note.AlarmOn = note.SoundFileOn = false;
        note.FlashOn = true;
        m_fixture->test.choosers.colours = {QColor(Qt::red)};
        press(*m_dialog, "cmdForeColor");
        if (!switched.isEmpty())
            control<QCheckBox>(*m_dialog, switched.constData()).click();
        if (year != 0)
            control<QDateEdit>(*m_dialog, "dtpAlarmDate").setDate(QDate(year, 1, 31));
        checkOk(m_fixture->test, *m_dialog, caption, "dtpAlarmDate");
        if (!caption.isEmpty())
            return;
        QVERIFY(m_dialog->SettingsResult(note));
        QCOMPARE(note.AlarmOn, onAgain);
        QCOMPARE(note.AlarmDateDay, year != 0 ? 31 : 2);
        QVERIFY(note.ForeColor == 0xFF && note.FlashOn && !note.SoundFileOn);
    }

    void passwordStaysWhenPromptIsCancelled()
    {
        open(noteWithAll());
        auto &box = control<QCheckBox>(*m_dialog, "chkPwd");
        answerDialog(u"frmEnterPwd"_s, [](QDialog &prompt) { press(prompt, "CancelButton"); });
        QCOMPARE(m_fixture->boxOf([&box] { box.click(); }).caption, u"Disabling failed"_s);
        QVERIFY(box.isChecked());
    }

    void hostileRecords_data()
    {
        const Rows<float, int> row; // fontSize, year
        row("zero", 0.0F, 0);
        row("not a number", std::numeric_limits<float>::quiet_NaN(), -1);
        row("huge", std::numeric_limits<float>::max(), 32767);
        row("endless", -std::numeric_limits<float>::infinity(), -32768);
    }

    void hostileRecords()
    {
        const auto [fontSize, year] = fetchRow<float, int>();
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

private:
    Program &program() { return m_fixture->program; }
    void open(const clsNoteProps &note)
    {
        m_dialog->Initialize(note);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    std::optional<ProgramFixture> m_fixture;
    std::unique_ptr<frmSettings> m_dialog;
};

QTEST_MAIN(testSettingsDialog)
#include "testSettingsDialog.moc"
