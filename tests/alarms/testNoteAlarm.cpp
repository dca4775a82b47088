// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/NoteAlarm.h"
#include "alarms/NoteFlash.h"
#include "alarms/modAlarm.h"
#include "platform/SystemClock.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Day = 86400;
const QDateTime Noon(QDate(2026, 3, 1), QTime(12, 0));

constexpr std::array Numbers{&clsNoteProps::AlarmDateYear,   &clsNoteProps::AlarmDateMonth,
                             &clsNoteProps::AlarmDateDay,    &clsNoteProps::AlarmTimeHour,
                             &clsNoteProps::AlarmTimeMinute, &clsNoteProps::AlarmTimeSecond};

/// "2026-03-01 12:00:00", of numbers that need not make a date.
clsNoteProps alarmAt(const QString &text)
{
    clsNoteProps record;
    static const QRegularExpression Parting(u"(?<=\\d)[-: ]"_s);
    const QStringList parts = text.split(Parting);
    for (size_t i = 0; i < Numbers.size(); ++i)
        record.*Numbers[i] = parts[qsizetype(i)].toShort();
    return record;
}

QDateTime local(const QString &text)
{
    return QDateTime::fromString(text, u"yyyy-MM-dd HH:mm:ss.zzz"_s);
}

/// One note with an alarm on a clock moved by hand.
struct Note
{
    TestProgram test{Noon};
    clsNoteProps record;
    bool gone = false;
    NoteAlarm alarm{test.program, [this] { return gone ? nullptr : &record; }};
    QSignalSpy fired{&alarm, &NoteAlarm::fired};
    QSignalSpy armedChanged{&alarm, &NoteAlarm::armedChanged};

    void arm(qint64 seconds)
    {
        const QDateTime moment = test.clock.now().addSecs(seconds);
        record.AlarmOn = true;
        modAlarm::setAlarmDate(record, moment.date());
        modAlarm::setAlarmTime(record, moment.time());
        alarm.ArmNoteAlarm();
    }
};

} // namespace

/// When alarms are due, and that they go off then.
class testNoteAlarm final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin");
        QVERIFY(local(u"2026-07-01 00:00:00.000"_s).offsetFromUtc() == 7200);
    }

    void waits()
    {
        const QDateTime now = local(u"2026-03-01 11:59:30.400"_s);
        // Seconds, 0 when it is due; when the program wakes.
        const auto row = [&now](const char *time, int seconds, const QDateTime &wake) {
            const clsNoteProps alarm = alarmAt(QString::fromLatin1(time));
            compareRow(time, modAlarm::AlarmDelay(alarm, now).seconds, seconds);
            compareRow(time, modAlarm::AlarmDelay(alarm, now).future, seconds > 0);
            compareRow(time, modAlarm::nextWake(alarm, now), wake);
        };
        row("2026-03-01 12:00:00", 30, local(u"2026-03-01 12:00:00.000"_s));
        row("2026-03-01 11:59:31", 1, local(u"2026-03-01 11:59:31.000"_s));
        row("2026-03-02 08:00:00", Day, local(u"2026-03-02 08:00:00.000"_s));
        row("2026-03-01 25:00:00", 46830, local(u"2026-03-02 01:00:00.400"_s));
        for (const char *due :
             {"2026-03-01 11:59:30", "2026-03-01 11:59:29", "2026-03-01 11:58:59", "2026-03-01 10:59:59",
              "2026-02-28 23:00:00", "2025-12-31 23:59:59", "2026-02-31 23:00:00", "0-0-0 0:0:0"})
            row(due, 0, now);
        for (const char *far :
             {"2026-03-02 20:00:00", "2026-12-31 00:00:00", "2027-01-01 00:00:00", "32767-01-01 00:00:00",
              "2026-03-32 00:00:00", "2026-13-01 00:00:00", "2026-03-01 32767:00:00"})
            row(far, Day, now.addDays(1));
    }

    void daylightSaving()
    {
        const auto row = [](const char *name, const QString &utc, const QString &alarm, int seconds) {
            const QDateTime now = QDateTime::fromString(utc, Qt::ISODate).toLocalTime();
            const QDateTime wake = modAlarm::nextWake(alarmAt(alarm), now);
            compareRow(name, modAlarm::AlarmDelay(alarmAt(alarm), now).seconds, seconds);
            compareRow(name, now.secsTo(wake), qint64(seconds));
            compareRow(name, modAlarm::AlarmDelay(alarmAt(alarm), wake).future, false);
        };
        row("an hour less in spring", u"2026-03-28T23:30:00Z"_s, u"2026-03-29 05:00:00"_s, 9000 + 3600);
        row("left out", u"2026-03-29T00:50:00Z"_s, u"2026-03-29 02:30:00"_s, 2400);
        row("an hour more in autumn", u"2026-10-24T22:30:00Z"_s, u"2026-10-25 05:00:00"_s, 5 * 3600 + 1800);
        row("first of two", u"2026-10-24T23:50:00Z"_s, u"2026-10-25 02:30:00"_s, 2400);
        row("second of two", u"2026-10-25T01:10:00Z"_s, u"2026-10-25 02:30:00"_s, 1200);
        row("past the change", u"2026-10-25T00:50:00Z"_s, u"2026-10-25 03:10:00"_s, 4800);
    }

    /// Whatever a record holds, a wait is at most a day and the wake-up is not in the past.
    void anyNumbers()
    {
        constexpr std::array<int, 6> Values{-32768, -1, 0, 3, 61, 32767};
        for (int code = 0; code < 6 * 6 * 6 * 6 * 6 * 6; ++code) {
            clsNoteProps record;
            int rest = code;
            for (const auto number : Numbers) {
                record.*number = static_cast<qint16>(Values[size_t(rest % 6)]);
                rest /= 6;
            }
            if (code % 2 == 0)
                modAlarm::setAlarmDate(record, Noon.date());
            const auto delay = modAlarm::AlarmDelay(record, Noon);
            const qint64 wake = Noon.secsTo(modAlarm::nextWake(record, Noon));
            QVERIFY2(delay.future == (delay.seconds > 0) && delay.seconds <= Day, qPrintable(QString::number(code)));
            QVERIFY2(wake >= 0 && wake <= Day && delay.future == (wake > 0), qPrintable(QString::number(code)));
            QVERIFY(modAlarm::nearestRealDate(record).isValid() && modAlarm::nearestRealTime(record).isValid());
        }
    }

    void nearestDates()
    {
        const auto row = [](const char *name, const QString &alarm, QDate date, QTime time) {
            compareRow(name, modAlarm::nearestRealDate(alarmAt(alarm)), date);
            compareRow(name, modAlarm::nearestRealTime(alarmAt(alarm)), time);
        };
        row("31 February", u"2026-02-31 25:61:-1"_s, QDate(2026, 2, 28), QTime(23, 59, 0));
        row("leap year", u"2028-02-31 10:20:99"_s, QDate(2028, 2, 29), QTime(10, 20, 59));
        row("month 13", u"2026-13-05 00:00:00"_s, QDate(2026, 12, 5), QTime(0, 0, 0));
        row("nothing", u"0-0-0 0:0:0"_s, QDate(1753, 1, 1), QTime(0, 0, 0));
        row("far", u"32767-0-31 0:0:0"_s, QDate(9999, 1, 31), QTime(0, 0, 0));
    }

    void firesOnceToTheSecond()
    {
        Note note;
        note.arm(30);
        QVERIFY(note.alarm.isArmed());
        note.test.clock.advance(29);
        QCOMPARE(note.fired.count(), 0);
        note.test.clock.advance(1);
        QCOMPARE(note.fired.count(), 1);
        QVERIFY(!note.record.AlarmOn && !note.alarm.isArmed());
        QCOMPARE(note.record.SaveTag, 1);
        QCOMPARE(note.armedChanged, (QList<QVariantList>{{true}, {false}}));
        note.alarm.ArmNoteAlarm();
        note.test.clock.advance(3 * Day);
        QCOMPARE(note.fired.count(), 1);
        note.arm(-100'000); // From the event loop, not from within.
        QCOMPARE(note.fired.count(), 1);
        note.test.clock.advance(0);
        QCOMPARE(note.fired.count(), 2);
    }

    void destroyKeepsTheRecord()
    {
        Note note;
        note.arm(30);
        note.arm(60);
        QCOMPARE(note.test.clock.runningCount(), 1);
        note.alarm.Destroy();
        note.test.clock.set(Noon.addSecs(60));
        QCOMPARE(note.fired.count(), 0);
        QVERIFY(note.record.AlarmOn && note.record.SaveTag == 0);
    }

    void nothingFiresDuringALoad()
    {
        Note note;
        note.test.program.file.LoadingData = true;
        note.arm(-5);
        note.test.clock.advance(10);
        QCOMPARE(note.fired.count(), 0);
        QVERIFY(note.alarm.isArmed() && note.record.AlarmOn);
        note.test.program.file.LoadingData = false;
        note.alarm.ArmNoteAlarm();
        note.test.clock.advance(0);
        QCOMPARE(note.fired.count(), 1);
    }

    void clockSet_data()
    {
        const Rows<int, int> row; // setTo, firesAt, in seconds from noon
        row("forward past the alarm", 7200, 7200);
        row("forward before it", 1800, 3600);
        row("back", -7200, 3600);
        row("back by days", -3 * Day, 3600);
    }

    void clockSet()
    {
        const auto [setTo, firesAt] = fetchRow<int, int>();
        Note note;
        QDateTime firedAt;
        connect(&note.alarm, &NoteAlarm::fired, this, [&note, &firedAt] { firedAt = note.test.clock.now(); });
        note.arm(3600);
        note.test.clock.set(Noon.addSecs(setTo));
        note.test.clock.passTo(Noon.addDays(1));
        QCOMPARE(firedAt, Noon.addSecs(firesAt));
    }

    void noteMayGo()
    {
        Note note;
        note.arm(5);
        note.gone = true;
        note.test.clock.advance(5);
        QCOMPARE(note.fired.count(), 0);
    }

    void systemClockIsOnTime()
    {
        SystemClock clock;
        const auto alarm = clock.makeAlarm();
        QSignalSpy due(alarm.get(), &WallAlarm::due);
        const QDateTime moment = clock.now().addMSecs(700);
        alarm->start(moment);
        QVERIFY(due.wait(1200));
        QVERIFY(clock.now() >= moment && !alarm->isRunning());
        alarm->start(QDateTime(QDate(1, 1, 1), QTime(0, 0)));
        QCOMPARE(due.count(), 1);
        QVERIFY(due.wait(1000));
    }

    void zoneIsNoticed()
    {
        const QTemporaryDir folder;
        const auto put = [&folder](const QString &name, const QByteArray &contents) {
            TestHome::setContents(folder.filePath(name), contents);
        };
        const auto link = [&folder](const QString &target) {
            const QByteArray next = QFile::encodeName(folder.filePath(u"next"_s));
            QVERIFY(QFile::link(folder.filePath(target), folder.filePath(u"next"_s)));
            QCOMPARE(std::rename(next.constData(), QFile::encodeName(folder.filePath(u"localtime"_s)).constData()), 0);
        };
        put(u"London"_s, "GMT");
        put(u"Berlin"_s, "CET");
        link(u"London"_s);
        SystemClock clock({folder.filePath(u"localtime"_s), folder.filePath(u"timezone"_s)});
        QSignalSpy told(&clock, &Clock::clockSet);
        for (const QString &city : {u"Berlin"_s, u"London"_s, u"Berlin"_s}) {
            told.clear();
            link(city);
            QTRY_COMPARE(told.count(), 1);
        }
        for (const char *zone : {"a", "b", "c"}) {
            told.clear();
            put(u"timezone"_s, zone);
            QTRY_VERIFY(told.count() > 0);
            QTest::qWait(50);
        }
        told.clear();
        put(u"another"_s, "x");
        link(u"Berlin"_s);
        QVERIFY(!told.wait(100));
    }

    void flashes()
    {
        NoteFlash flash;
        QStringList steps;
        connect(&flash, &NoteFlash::raiseWanted, this, [&steps] { steps << u"raise"_s; });
        connect(&flash, &NoteFlash::colourChanged, this, [&steps](const QColor &colour) { steps << colour.name(); });
        QElapsedTimer timer;
        timer.start();
        flash.StartFlashing(QColor(0xFF, 0xF0, 0x01));
        QCOMPARE(steps.join(u' '), u"raise #000ffe"_s);
        QTRY_COMPARE_WITH_TIMEOUT(steps.size(), 4, 2500);
        QVERIFY(timer.elapsed() > 1800);
        QCOMPARE(steps.mid(2).join(u' '), u"raise #fff001"_s);
        flash.StartFlashing(Qt::red);
        QCOMPARE(steps.last(), u"#00ffff"_s);
        flash.StopFlashing();
        QCOMPARE(steps.last(), u"#ff0000"_s);
        QVERIFY(!flash.isFlashing());
    }
};

QTEST_MAIN(testNoteAlarm)
#include "testNoteAlarm.moc"
