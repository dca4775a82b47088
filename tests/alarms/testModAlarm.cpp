// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/modAlarm.h"
#include "model/clsNoteProps.h"

#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace
{

constexpr int Day = 86400;

/// "2026-03-01 12:00:00", of numbers that need not make a date.
clsNoteProps alarmAt(const QString &text)
{
    clsNoteProps record;
    const QStringList date = text.section(u' ', 0, 0).split(u'-');
    const QStringList time = text.section(u' ', 1).split(u':');
    record.AlarmDateYear = date[0].toShort();
    record.AlarmDateMonth = date[1].toShort();
    record.AlarmDateDay = date[2].toShort();
    record.AlarmTimeHour = time[0].toShort();
    record.AlarmTimeMinute = time[1].toShort();
    record.AlarmTimeSecond = time[2].toShort();
    return record;
}

QDateTime local(const QString &text)
{
    return QDateTime::fromString(text, text.contains(u'.') ? u"yyyy-MM-dd HH:mm:ss.zzz"_s : u"yyyy-MM-dd HH:mm:ss"_s);
}

} // namespace

class testModAlarm final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void waits_data();
    void waits();
    void daylightSaving_data();
    void daylightSaving();
    void anyNumbers();
    void nearestDates_data();
    void nearestDates();
};

void testModAlarm::initTestCase()
{
    qputenv("TZ", "Europe/Berlin");
    QVERIFY(local(u"2026-07-01 00:00:00"_s).offsetFromUtc() == 7200);
}

void testModAlarm::waits_data()
{
    QTest::addColumn<QString>("alarm");
    QTest::addColumn<int>("seconds"); // 0: due
    QTest::addColumn<QString>("wake");
    const auto row = [](const char *alarm, int seconds, const char *wake) {
        QTest::newRow(alarm) << QString::fromLatin1(alarm) << seconds << QString::fromLatin1(wake);
    };
    // Now is 2026-03-01 11:59:30.400.
    row("2026-03-01 12:00:00", 30, "2026-03-01 12:00:00.000");
    row("2026-03-01 11:59:31", 1, "2026-03-01 11:59:31.000");
    row("2026-03-01 11:59:30", 0, "2026-03-01 11:59:30.400");
    row("2026-03-01 11:59:29", 0, "2026-03-01 11:59:30.400");
    row("2026-03-01 11:58:59", 0, "2026-03-01 11:59:30.400");
    row("2026-03-01 10:59:59", 0, "2026-03-01 11:59:30.400");
    row("2026-02-28 23:00:00", 0, "2026-03-01 11:59:30.400");
    row("2025-12-31 23:59:59", 0, "2026-03-01 11:59:30.400");
    row("2026-03-02 08:00:00", Day, "2026-03-02 08:00:00.000");
    row("2026-03-02 20:00:00", Day, "2026-03-02 11:59:30.400");
    row("2026-12-31 00:00:00", Day, "2026-03-02 11:59:30.400");
    row("2027-01-01 00:00:00", Day, "2026-03-02 11:59:30.400");
    row("32767-01-01 00:00:00", Day, "2026-03-02 11:59:30.400");
    row("2026-03-32 00:00:00", Day, "2026-03-02 11:59:30.400");
    row("2026-13-01 00:00:00", Day, "2026-03-02 11:59:30.400");
    row("2026-02-31 23:00:00", 0, "2026-03-01 11:59:30.400");
    row("0-0-0 0:0:0", 0, "2026-03-01 11:59:30.400");
    row("2026-03-01 25:00:00", 46830, "2026-03-02 01:00:00.400");
    row("2026-03-01 32767:00:00", Day, "2026-03-02 11:59:30.400");
}

void testModAlarm::waits()
{
    QFETCH(QString, alarm);
    QFETCH(int, seconds);
    QFETCH(QString, wake);
    const QDateTime now = local(u"2026-03-01 11:59:30.400"_s);
    const auto delay = modAlarm::AlarmDelay(alarmAt(alarm), now);
    QCOMPARE(delay.seconds, seconds);
    QCOMPARE(delay.future, seconds > 0);
    QCOMPARE(modAlarm::nextWake(alarmAt(alarm), now), local(wake));
}

void testModAlarm::daylightSaving_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QString>("alarm");
    QTest::addColumn<int>("seconds");
    const auto utc = [](const char *text) {
        return QDateTime::fromString(QLatin1String(text), Qt::ISODate).toLocalTime();
    };
    QTest::newRow("an hour less in spring") << utc("2026-03-28T23:30:00Z") << u"2026-03-29 05:00:00"_s << 9000 + 3600;
    QTest::newRow("left out") << utc("2026-03-29T00:50:00Z") << u"2026-03-29 02:30:00"_s << 2400;
    QTest::newRow("an hour more in autumn")
        << utc("2026-10-24T22:30:00Z") << u"2026-10-25 05:00:00"_s << 5 * 3600 + 1800;
    QTest::newRow("first of two") << utc("2026-10-24T23:50:00Z") << u"2026-10-25 02:30:00"_s << 2400;
    QTest::newRow("second of two") << utc("2026-10-25T01:10:00Z") << u"2026-10-25 02:30:00"_s << 1200;
    QTest::newRow("past the change") << utc("2026-10-25T00:50:00Z") << u"2026-10-25 03:10:00"_s << 4800;
}

void testModAlarm::daylightSaving()
{
    QFETCH(QDateTime, now);
    QFETCH(QString, alarm);
    QFETCH(int, seconds);
    QCOMPARE(modAlarm::AlarmDelay(alarmAt(alarm), now).seconds, seconds);
    const QDateTime wake = modAlarm::nextWake(alarmAt(alarm), now);
    QCOMPARE(now.secsTo(wake), seconds);
    QVERIFY(!modAlarm::AlarmDelay(alarmAt(alarm), wake).future);
}

/// Whatever a record holds, a wait is at most a day and the wake-up is not in the past.
void testModAlarm::anyNumbers()
{
    constexpr std::array<int, 6> Values{-32768, -1, 0, 3, 61, 32767};
    const QDateTime now = local(u"2026-03-01 11:59:30"_s);
    for (int code = 0; code < 6 * 6 * 6 * 6 * 6 * 6; ++code) {
        clsNoteProps record;
        int rest = code;
        for (auto field :
             {&clsNoteProps::AlarmDateYear, &clsNoteProps::AlarmDateMonth, &clsNoteProps::AlarmDateDay,
              &clsNoteProps::AlarmTimeHour, &clsNoteProps::AlarmTimeMinute, &clsNoteProps::AlarmTimeSecond}) {
            record.*field = static_cast<qint16>(Values[size_t(rest % 6)]);
            rest /= 6;
        }
        if (code % 2 == 0) {
            record.AlarmDateYear = 2026;
            record.AlarmDateMonth = 3;
            record.AlarmDateDay = 1;
        }
        const auto delay = modAlarm::AlarmDelay(record, now);
        const qint64 wake = now.secsTo(modAlarm::nextWake(record, now));
        QVERIFY2(delay.future == (delay.seconds > 0) && delay.seconds <= Day, qPrintable(QString::number(code)));
        QVERIFY2(wake >= 0 && wake <= Day && delay.future == (wake > 0), qPrintable(QString::number(code)));
        QVERIFY(modAlarm::nearestRealDate(record).isValid() && modAlarm::nearestRealTime(record).isValid());
    }
}

void testModAlarm::nearestDates_data()
{
    QTest::addColumn<QString>("alarm");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::newRow("31 February") << u"2026-02-31 25:61:-1"_s << QDate(2026, 2, 28) << QTime(23, 59, 0);
    QTest::newRow("leap year") << u"2028-02-31 10:20:99"_s << QDate(2028, 2, 29) << QTime(10, 20, 59);
    QTest::newRow("month 13") << u"2026-13-05 00:00:00"_s << QDate(2026, 12, 5) << QTime(0, 0, 0);
    QTest::newRow("nothing") << u"0-0-0 0:0:0"_s << QDate(1753, 1, 1) << QTime(0, 0, 0);
    QTest::newRow("far") << u"32767-0-31 0:0:0"_s << QDate(9999, 1, 31) << QTime(0, 0, 0);
}

void testModAlarm::nearestDates()
{
    QFETCH(QString, alarm);
    QTEST(modAlarm::nearestRealDate(alarmAt(alarm)), "date");
    QTEST(modAlarm::nearestRealTime(alarmAt(alarm)), "time");
}

QTEST_APPLESS_MAIN(testModAlarm)
#include "testModAlarm.moc"
