// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/NoteAlarm.h"
#include "alarms/NoteFlash.h"
#include "alarms/modAlarm.h"
#include "platform/SystemClock.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace
{

const QDateTime Noon(QDate(2026, 3, 1), QTime(12, 0));

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

using namespace Qt::StringLiterals;

class testNoteAlarm final : public QObject
{
    Q_OBJECT

private slots:
    void firesOnceToTheSecond();
    void destroyKeepsTheRecord();
    void nothingFiresDuringALoad();
    void clockSet_data();
    void clockSet();
    void noteMayGo();
    void systemClockIsOnTime();
    void zoneIsNoticed();
    void flashes();
};

void testNoteAlarm::firesOnceToTheSecond()
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
    note.test.clock.advance(3 * 86400);
    QCOMPARE(note.fired.count(), 1);
    note.arm(-100'000); // From the event loop, not from within.
    QCOMPARE(note.fired.count(), 1);
    note.test.clock.advance(0);
    QCOMPARE(note.fired.count(), 2);
}

void testNoteAlarm::destroyKeepsTheRecord()
{
    Note note;
    note.arm(30);
    note.arm(60);
    QCOMPARE(note.test.clock.runningCount(), 1);
    note.alarm.Destroy();
    note.test.clock.set(Noon.addSecs(60));
    QCOMPARE(note.fired.count(), 0);
    QVERIFY(note.record.AlarmOn);
    QCOMPARE(note.record.SaveTag, 0);
}

void testNoteAlarm::nothingFiresDuringALoad()
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

void testNoteAlarm::clockSet_data()
{
    QTest::addColumn<int>("setTo"); // seconds from noon
    QTest::addColumn<int>("firesAt");
    QTest::newRow("forward past the alarm") << 7200 << 7200;
    QTest::newRow("forward before it") << 1800 << 3600;
    QTest::newRow("back") << -7200 << 3600;
    QTest::newRow("back by days") << -3 * 86400 << 3600;
}

void testNoteAlarm::clockSet()
{
    QFETCH(int, setTo);
    QFETCH(int, firesAt);
    Note note;
    QDateTime firedAt;
    connect(&note.alarm, &NoteAlarm::fired, this, [&] { firedAt = note.test.clock.now(); });
    note.arm(3600);
    note.test.clock.set(Noon.addSecs(setTo));
    note.test.clock.passTo(Noon.addDays(1));
    QCOMPARE(firedAt, Noon.addSecs(firesAt));
}

void testNoteAlarm::noteMayGo()
{
    Note note;
    note.arm(5);
    note.gone = true;
    note.test.clock.advance(5);
    QCOMPARE(note.fired.count(), 0);
}

void testNoteAlarm::systemClockIsOnTime()
{
    SystemClock clock;
    const auto alarm = clock.makeAlarm();
    QSignalSpy due(alarm.get(), &WallAlarm::due);
    const QDateTime moment = clock.now().addMSecs(700);
    alarm->start(moment);
    QVERIFY(due.wait(1200));
    QVERIFY(clock.now() >= moment);
    QVERIFY(!alarm->isRunning());
    alarm->start(QDateTime(QDate(1, 1, 1), QTime(0, 0)));
    QCOMPARE(due.count(), 1);
    QVERIFY(due.wait(1000));
}

void testNoteAlarm::zoneIsNoticed()
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

void testNoteAlarm::flashes()
{
    NoteFlash flash;
    QStringList steps;
    connect(&flash, &NoteFlash::raiseWanted, this, [&] { steps << QStringLiteral("raise"); });
    connect(&flash, &NoteFlash::colourChanged, this, [&](const QColor &colour) { steps << colour.name(); });
    QElapsedTimer timer;
    timer.start();
    flash.StartFlashing(QColor(0xFF, 0xF0, 0x01));
    QCOMPARE(steps.join(u' '), QStringLiteral("raise #000ffe"));
    QTRY_COMPARE_WITH_TIMEOUT(steps.size(), 4, 2500);
    QVERIFY(timer.elapsed() > 1800);
    QCOMPARE(steps.mid(2).join(u' '), QStringLiteral("raise #fff001"));
    flash.StartFlashing(Qt::red);
    QCOMPARE(steps.last(), QStringLiteral("#00ffff"));
    flash.StopFlashing();
    QCOMPARE(steps.last(), QStringLiteral("#ff0000"));
    QVERIFY(!flash.isFlashing());
}

QTEST_MAIN(testNoteAlarm)
#include "testNoteAlarm.moc"
