// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemNearby.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Stands in for the system's service: keeps what it is asked, and knows one computer.
class FakeService final : public QDBusVirtualObject
{
public:
    QStringList asked;
    uint flags = 0;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        const QString member = message.member();
        asked << member;
        if (member == u"ServiceBrowserNew") {
            connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(u"/browser"_s))));
            QDBusMessage item =
                QDBusMessage::createSignal(u"/browser"_s, u"org.freedesktop.Avahi.ServiceBrowser"_s, u"ItemNew"_s);
            item.setArguments({2, 0, u"Ann on desk"_s, message.arguments().at(2), u"local"_s, flags});
            return connection.send(item);
        }
        if (member == u"EntryGroupNew")
            return connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(u"/group"_s))));
        if (member == u"AddService")
            added = message.arguments();
        if (member != u"ResolveService")
            return connection.send(message.createReply());
        const QVariantList resolved{2,
                                    0,
                                    message.arguments().at(2),
                                    u"t"_s,
                                    u"local"_s,
                                    u"desk.local"_s,
                                    0,
                                    u"1.2.3.4"_s,
                                    QVariant::fromValue(quint16(1500))};
        return connection.send(message.createReply(resolved));
    }
    QVariantList added;
};

class testNearby final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aSilentBus();
    void nobodyToAsk();
    void looking();
    void announcing();
    void cleanupTestCase();

private:
    QProcess m_bus;
};

/// A bus of the test's own in place of the system's.
void testNearby::initTestCase()
{
    qRegisterMetaType<NearbyComputer>();
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (!m_bus.waitForStarted())
        QSKIP("There is no dbus-daemon");
    QTRY_VERIFY(m_bus.canReadLine());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void testNearby::cleanupTestCase()
{
    m_bus.kill();
    m_bus.waitForFinished();
}

/// It takes connections and says nothing: nobody waits. The first test: a connection once made is kept.
void testNearby::aSilentBus()
{
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    const QTemporaryDir folder;
    QLocalServer bus;
    QVERIFY(bus.listen(folder.filePath(u"bus"_s)));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS",
            "tcp:host=x;unix:path=" + QFile::encodeName(bus.fullServerName()).replace('/', "%2f") + ",guid=1");
    {
        QElapsedTimer timer;
        timer.start();
        SystemNearby nearby;
        nearby.look();
        nearby.announce(u"me"_s, 1420);
        QTRY_VERIFY(bus.hasPendingConnections());
        nearby.stopLooking();
        nearby.look();
        QTest::qWait(100);
        nearby.announce(u"me"_s, 0);
        QVERIFY2(timer.elapsed() < 2000, "Somebody waited");
    }
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
}

void testNearby::nobodyToAsk()
{
    SystemNearby nearby;
    QSignalSpy spy(&nearby, &Nearby::found);
    nearby.look();
    nearby.announce(u"me"_s, 1420);
    QTest::qWait(50);
    nearby.stopLooking();
    QVERIFY(spy.isEmpty());
}

void testNearby::looking()
{
    QDBusConnection connection = QDBusConnection::systemBus();
    FakeService service;
    QVERIFY(connection.registerVirtualObject(u"/"_s, &service, QDBusConnection::SubPath));
    QVERIFY(connection.registerService(u"org.freedesktop.Avahi"_s));
    SystemNearby nearby;
    QSignalSpy spy(&nearby, &Nearby::found);
    nearby.look();
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().value<NearbyComputer>(), (NearbyComputer{u"Ann on desk"_s, u"desk.local"_s, 1500}));
    nearby.stopLooking();
    QTRY_COMPARE(service.asked, (QStringList{u"ServiceBrowserNew"_s, u"ResolveService"_s, u"Free"_s}));
    service.flags = 16; // It is this program itself.
    nearby.look();
    nearby.stopLooking();
    nearby.look();
    QTRY_COMPARE(service.asked.count(u"ServiceBrowserNew"_s), 2);
    nearby.stopLooking();
    nearby.look();
    QTRY_COMPARE(service.asked.count(u"ServiceBrowserNew"_s), 3);
    QTest::qWait(50);
    QCOMPARE(spy.size(), 1);
    connection.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
}

void testNearby::announcing()
{
    QDBusConnection connection = QDBusConnection::systemBus();
    FakeService service;
    QVERIFY(connection.registerVirtualObject(u"/"_s, &service, QDBusConnection::SubPath));
    SystemNearby nearby;
    nearby.announce(u"gone"_s, 1);
    nearby.announce(u"Ann on desk"_s, 1500);
    QTRY_VERIFY(service.asked.contains(u"Commit"_s));
    QCOMPARE(service.asked.count(u"AddService"_s), 1);
    QCOMPARE(service.added.at(3).toString(), u"Ann on desk"_s);
    QCOMPARE(service.added.at(4).toString(), u"_quillets._tcp"_s);
    QCOMPARE(service.added.at(7).value<quint16>(), quint16(1500));
    service.asked.clear();
    nearby.announce(u"Ann on desk"_s, 0);
    QTRY_COMPARE(service.asked, QStringList{u"Free"_s});
    connection.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
}

QTEST_GUILESS_MAIN(testNearby)
#include "testNearby.moc"
