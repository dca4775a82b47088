// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "ScriptedPeer.h"
#include "net/Packet.h"
#include "net/SendRun.h"
#include "samplePackets.h"
#include "support/rows.h"

#include <QPointer>
#include <QSignalSpy>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using End = ExchangeResult::End;
using Then = Turn::Then;

namespace
{

constexpr ExchangeTimes Patient{20s, 20s, 1ms};
constexpr ExchangeTimes ShortWait{20s, 60ms, 1ms};
constexpr ExchangeTimes ShortWhole{150ms, 20s, 1ms};
constexpr ExchangeTimes BothShort{100ms, 100ms, 50ms};

const QString Wait = u"Message not sent (200)"_s;
const QString Whole = u"Message not sent (300)"_s;

QByteArray bigPacket()
{
    return encodePacket(samplePacket(QString(1'500'000, u'x')));
}

SendTarget at(const ScriptedPeer &peer)
{
    return {u"127.0.0.1"_s, {}, peer.port()};
}

/// All that one exchange tells.
struct Heard
{
    explicit Heard(NoteSender &sender)
    {
        QObject::connect(&sender, &NoteSender::stepChanged, &context, [this](const QString &l) { labels << l; });
        QObject::connect(&sender, &NoteSender::lengthKnown, &context, [this](int bytes) { length = bytes; });
        QObject::connect(&sender, &NoteSender::progressed, &context, [this](int bytes) {
            isSteady = isSteady && (bytes >= most || bytes == 0);
            most = std::max(most, bytes);
            last = bytes;
        });
        QObject::connect(&sender, &NoteSender::finished, &context, [this, &sender](const ExchangeResult &result) {
            wasIdleWhenTold = !sender.isRunning();
            results << result;
        });
    }
    QStringList labels;
    QList<ExchangeResult> results;
    int length = 0;
    int most = 0;
    int last = -1;
    bool isSteady = true;
    bool wasIdleWhenTold = false;
    QObject context;
};

} // namespace

class testNoteSender final : public QObject
{
    Q_OBJECT

private slots:
    void talks_data()
    {
        // script, byte by byte, times, caption of the failure or nothing, bytes that the peer hears or -1 for any
        const Rows<Script, bool, ExchangeTimes, QString, int> row;
        const QByteArray length = QByteArray::number(bigPacket().size());
        const qsizetype size = bigPacket().size();
        const Turn hello{0, "250"};
        const Turn echo{4, length};
        const Turn done{size, "300"};
        const int all = int(size);

        const auto good = [&](const char *name, const Script &script, bool byteByByte = false) {
            row(name, script, byteByByte, Patient, {}, all);
        };
        good("good", {hello, echo, done});
        good("single bytes", {hello, echo, done}, true);
        good("all at once", {{0, "250" + length + "300"}});
        good("with line ends", {{0, "250 ready\r\n"}, {4, length + "\r\n"}, {size, "300\r\n"}});
        good("another word first", {{0, "220"}, {0, "25"}, {0, "0"}, echo, done}, true);
        good("closes behind the 300", {hello, echo, {size, "300", Then::Close}});

        const auto waits = [&row](const char *name, const Script &script, int heard, ExchangeTimes times = ShortWait,
                                  const QString &caption = Wait) { row(name, script, false, times, caption, heard); };
        waits("silent", {}, 0);
        waits("silent, both times end", {}, 0, BothShort);
        waits("silent, the whole time ends", {}, 0, ShortWhole, Whole);
        waits("never ready", {{0, "554 25 0"}}, 0);
        waits("stalls before the length", {hello}, 4);
        waits("stalls in the length", {hello, {4, length.chopped(1)}}, 4);
        waits("stalls before the 300", {hello, echo}, all);
        waits("stalls, the whole time ends", {hello, echo}, all, ShortWhole, Whole);
        waits("another length", {hello, {4, "17"}, {4, "300"}}, 4);
        waits("a longer length", {hello, {4, length + "1"}}, 4);
        waits("no number", {hello, {4, "abc"}}, 4);
        waits("endless talk", {{0, QByteArray(2'000'000, '7')}}, 0);

        const auto breaks = [&row](const char *name, const Script &script, int heard) {
            row(name, script, false, Patient, u"Quillets"_s, heard);
        };
        breaks("closes at once", {{0, "", Then::Close}}, -1);
        breaks("closes instead of the length", {hello, {4, "", Then::Close}}, 4);
        breaks("breaks within the packet", {hello, echo, {size / 2, "", Then::Break}}, -1);
        breaks("closes instead of the 300", {hello, echo, {size, "30", Then::Close}}, all);
    }

    void talks()
    {
        const auto [script, byteByByte, times, caption, heard] = fetchRow<Script, bool, ExchangeTimes, QString, int>();
        ScriptedPeer peer(script, byteByByte);
        NoteSender sender(times);
        const Heard told(sender);
        sender.start(bigPacket(), at(peer));
        QTRY_COMPARE_WITH_TIMEOUT(told.results.size(), 1, 10'000);
        const bool isGood = caption.isEmpty();
        QCOMPARE(told.results.first().end, isGood ? End::Done : End::Failed);
        if (!isGood)
            QCOMPARE(told.results.first().notice.caption, caption);
        QVERIFY(told.wasIdleWhenTold && told.isSteady);
        QCOMPARE(told.length, int(bigPacket().size()));
        QCOMPARE(told.labels.first(), u"Connecting ... "_s);
        QCOMPARE(told.labels.last(), isGood ? u"Message sent."_s : u"Send canceled."_s);
        QCOMPARE(told.last, 0);
        if (isGood) {
            QCOMPARE(told.labels.mid(1, 2),
                     (QStringList{u"Connected ... "_s, u"Sending to port %1 ..."_s.arg(peer.port())}));
            QCOMPARE(told.most, told.length);
            QVERIFY(peer.received.first() == bigPacket());
        }
        if (heard >= 0)
            QTRY_COMPARE(peer.received.first().size(), heard);
        // Nothing comes behind the end, not even when the peer goes.
        peer.stopListening();
        QTest::qWait(0);
        QCOMPARE(told.results.size(), 1);
    }

    void stops_data()
    {
        const Rows<Script> row; // script; the name begins the label at which it is stopped
        const Turn hello{0, "250"};
        row("Connecting", {});
        row("Connected", {hello});
        row("Sending to port", {hello, {4, QByteArray::number(bigPacket().size())}});
    }

    void stops()
    {
        const auto [script] = fetchRow<Script>();
        const ScriptedPeer peer(script);
        NoteSender sender(Patient);
        const Heard told(sender);
        connect(&sender, &NoteSender::stepChanged, &sender, [&](const QString &label) {
            if (label.startsWith(QLatin1StringView(QTest::currentDataTag())))
                sender.stop();
        });
        sender.start(bigPacket(), at(peer));
        QTRY_COMPARE(told.results.size(), 1);
        QCOMPARE(told.results.first().end, End::Canceled);
        QCOMPARE(told.labels.last(2), (QStringList{u"Send canceled"_s, u"Send canceled."_s}));
        sender.stop();
        QCOMPARE(told.results.size(), 1);
    }

    void refusedConnection()
    {
        ScriptedPeer peer({});
        const SendTarget nobody = at(peer);
        peer.stopListening();
        NoteSender sender(Patient);
        const Heard told(sender);
        sender.start(bigPacket(), nobody);
        QTRY_COMPARE(told.results.size(), 1);
        const Notice notice = told.results.first().notice;
        QVERIFY(notice.text.startsWith(u"An error has occured.  Server said: \n"_s));
        QVERIFY(notice.text.endsWith(u"\nPlease try again later."_s) && !notice.isCritical);
    }

    void outOfRange()
    {
        NoteSender sender(Patient);
        const Heard told(sender);
        for (const qint32 port : {-1, 65536}) {
            sender.start(bigPacket(), {u"127.0.0.1"_s, {}, port});
            QTRY_VERIFY(!sender.isRunning());
        }
        sender.start(QByteArray(LargestPacket + 1, 'x'), {u"127.0.0.1"_s, {}, 9});
        QTRY_COMPARE(told.results.size(), 3);
        for (const ExchangeResult &result : told.results)
            QCOMPARE(result.end, End::Failed);
    }

    void severalTargets()
    {
        const QByteArray packet = encodePacket(samplePacket());
        const Script good{{0, "250"}, {4, QByteArray::number(packet.size())}, {packet.size(), "300"}};
        ScriptedPeer first(good);
        ScriptedPeer broken({{0, "", Then::Close}});
        ScriptedPeer last(good);
        SendRun run(Patient);
        QList<End> ends;
        connect(&run, &SendRun::targetFinished, this, [&](const SendTarget &, const ExchangeResult &result) {
            // As long as a box is shown for this target the next one waits.
            const qsizetype begun = last.received.size();
            QTest::qWait(1);
            QCOMPARE(last.received.size(), begun);
            ends << result.end;
        });
        QSignalSpy finished(&run, &SendRun::finished);
        run.start(packet, {at(first), at(broken), at(last)});
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(ends, (QList{End::Done, End::Failed, End::Done}));
        QCOMPARE(first.received, QList{packet});
        QCOMPARE(last.received, QList{packet});
        QVERIFY(!run.isRunning());
    }

    void stoppingTheRun()
    {
        ScriptedPeer silent({});
        ScriptedPeer never({});
        SendRun run(Patient);
        QSignalSpy finished(&run, &SendRun::finished);
        run.start(encodePacket(samplePacket()), {at(silent), at(never)});
        QTRY_COMPARE(silent.received.size(), 1);
        run.stop();
        QTRY_COMPARE(finished.size(), 1);
        // Between two targets, while the failure of the first is told.
        ScriptedPeer broken({{0, "", Then::Close}});
        connect(&run, &SendRun::targetFinished, &run, &SendRun::stop);
        run.start(encodePacket(samplePacket()), {at(broken), at(never)});
        QTRY_COMPARE(finished.size(), 2);
        QVERIFY(never.received.isEmpty());
    }

    void deletedInASlot()
    {
        ScriptedPeer peer({{0, "250"}});
        for (const QString &step : {u"Connecting ... "_s, u"Connected ... "_s}) {
            const QPointer<NoteSender> sender = new NoteSender(Patient);
            connect(sender, &NoteSender::stepChanged, this, [sender, step](const QString &label) {
                if (label == step)
                    delete sender;
            });
            sender->start(bigPacket(), at(peer));
            QTRY_VERIFY(!sender);
        }
    }
};

QTEST_GUILESS_MAIN(testNoteSender)
#include "testNoteSender.moc"
