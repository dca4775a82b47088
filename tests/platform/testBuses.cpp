// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/DesktopActions.h"
#include "platform/PortalKeys.h"
#include "platform/SystemNearby.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

/// Answers what it is asked, and keeps it.
class FakeService : public QDBusVirtualObject
{
public:
    QStringList asked;

    QString introspect(const QString &) const override { return {}; }
};

/// Stands in for the system's service, which knows one computer.
class Avahi final : public FakeService
{
public:
    uint flags = 0;
    QVariantList added;

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
        const QVariant name = message.arguments().at(2);
        const QVariant port = QVariant::fromValue(quint16(1500));
        return connection.send(
            message.createReply({2, 0, name, u"t"_s, u"local"_s, u"desk.local"_s, 0, u"1.2.3.4"_s, port}));
    }
};

/// Answers as a portal does, in whose desktop the user says yes or no.
class Portal final : public FakeService
{
public:
    bool says = true;
    QDBusMessage bound;

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        asked << message.member();
        if (message.member() == u"Close")
            return true;
        const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
        const QString request = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            message.service().mid(1).replace(u'.', u'_'), options.value(u"handle_token"_s).toString());
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        if (message.member() == u"BindShortcuts")
            bound = message;
        auto response = QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << (says ? 0U : 1U) << QVariantMap{{u"session_handle"_s, u"/session/1"_s}};
        return connection.send(response);
    }
};

} // namespace

/// What the program asks and is asked on the buses of the desktop and of the system, which are one of the test's own.
class testBuses final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<NearbyComputer>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty())
            QSKIP("There is no dbus-daemon.");
        m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(m_bus.waitForReadyRead());
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        QVERIFY(QDBusConnection::connectToBus(QString::fromLocal8Bit(address), u"others"_s).isConnected());
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"others"_s);
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void desktopActions()
    {
        DesktopActions actions;
        QVERIFY(actions.publish());
        const QSignalSpy activated(&actions, &DesktopActions::activated);
        const QSignalSpy wanted(&actions, &DesktopActions::actionWanted);
        const auto call = [this](const QString &method, const QVariantList &arguments) {
            auto message = QDBusMessage::createMethodCall(u"org.quillets.Quillets"_s, u"/org/quillets/Quillets"_s,
                                                          u"org.freedesktop.Application"_s, method);
            message.setArguments(arguments);
            QDBusPendingCall answer = others().asyncCall(message);
            const bool came = QTest::qWaitFor([&answer] { return answer.isFinished(); });
            return came && !answer.isError();
        };
        QVERIFY(call(u"Activate"_s, {QVariantMap()}));
        QTRY_COMPARE(activated.count(), 1);
        QVERIFY(call(u"ActivateAction"_s, {u"new-note"_s, QVariantList(), QVariantMap()}));
        QTRY_COMPARE(wanted, (QList<QVariantList>{{u"new-note"_s}}));
        QVERIFY(call(u"Open"_s, {QStringList{u"file:///etc/passwd"_s}, QVariantMap()}));
        QTRY_COMPARE(activated.count(), 2);
        // Nothing else of the object can be called.
        QVERIFY(!call(u"deleteLater"_s, {}));
        QVERIFY(!DesktopActions().publish());
    }

    void keysWithoutAPortal()
    {
        QVERIFY(!PortalKeys::isThere());
        PortalKeys keys;
        const QSignalSpy refused(&keys, &PortalKeys::refused);
        keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Ctrl+Alt+N"_s)}});
        QTRY_COMPARE(refused.count(), 1);
        QVERIFY(others().registerVirtualObject(u"/"_s, &m_portal, QDBusConnection::SubPath));
        QVERIFY(others().registerService(u"org.freedesktop.portal.Desktop"_s));
        QVERIFY(PortalKeys::isThere());
    }

    void keysWantedAndPressed()
    {
        PortalKeys keys;
        const QSignalSpy pressed(&keys, &PortalKeys::pressed);
        keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Ctrl+Alt+N"_s)}, {u"1"_s, u"None"_s, QKeySequence()}});
        QTRY_COMPARE(m_portal.asked, (QStringList{u"CreateSession"_s, u"BindShortcuts"_s}));
        QCOMPARE(m_portal.bound.signature(), u"oa(sa{sv})sa{sv}"_s);
        const auto press = [this](const QString &session) {
            auto signal = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                                     u"org.freedesktop.portal.GlobalShortcuts"_s, u"Activated"_s);
            signal << QVariant::fromValue(QDBusObjectPath(session)) << u"0"_s << 1ULL << QVariantMap();
            others().send(signal);
        };
        press(u"/session/2"_s); // Another program's.
        press(u"/session/1"_s);
        QTRY_COMPARE(pressed, (QList<QVariantList>{{u"0"_s}}));
        keys.want({});
        QTRY_COMPARE(m_portal.asked.constLast(), u"Close"_s);
        press(u"/session/1"_s);
        QTest::qWait(50);
        QCOMPARE(pressed.count(), 1);
    }

    void keysRefusedByTheUser()
    {
        m_portal.says = false;
        m_portal.asked.clear();
        PortalKeys keys;
        const QSignalSpy refused(&keys, &PortalKeys::refused);
        keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Meta+F5"_s)}});
        QTRY_COMPARE(refused.count(), 1);
        QCOMPARE(m_portal.asked, QStringList{u"CreateSession"_s});
    }

    /// It takes connections and says nothing: nobody waits. Before the others: a connection once made is kept.
    void silentSystemBus()
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

    void nobodyToAsk()
    {
        SystemNearby nearby;
        const QSignalSpy spy(&nearby, &Nearby::found);
        nearby.look();
        nearby.announce(u"me"_s, 1420);
        QTest::qWait(50);
        nearby.stopLooking();
        QVERIFY(spy.isEmpty());
    }

    void looking()
    {
        QDBusConnection connection = QDBusConnection::systemBus();
        Avahi service;
        QVERIFY(connection.registerVirtualObject(u"/"_s, &service, QDBusConnection::SubPath));
        QVERIFY(connection.registerService(u"org.freedesktop.Avahi"_s));
        SystemNearby nearby;
        const QSignalSpy spy(&nearby, &Nearby::found);
        nearby.look();
        QTRY_COMPARE(spy.size(), 1);
        QCOMPARE(spy.first().first().value<NearbyComputer>(),
                 (NearbyComputer{u"Ann on desk"_s, u"desk.local"_s, 1500}));
        nearby.stopLooking();
        QTRY_COMPARE(service.asked, (QStringList{u"ServiceBrowserNew"_s, u"ResolveService"_s, u"Free"_s}));
        service.flags = 16; // It is this program itself.
        nearby.look();
        for (const int looks : {2, 3}) {
            nearby.stopLooking();
            nearby.look();
            QTRY_COMPARE(service.asked.count(u"ServiceBrowserNew"_s), looks);
        }
        QTest::qWait(50);
        QCOMPARE(spy.size(), 1);
        connection.unregisterObject(u"/"_s, QDBusConnection::UnregisterTree);
    }

    void announcing()
    {
        QDBusConnection connection = QDBusConnection::systemBus();
        Avahi service;
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

private:
    /// The other side of the bus.
    QDBusConnection others() const { return QDBusConnection(u"others"_s); }

    QProcess m_bus;
    Portal m_portal;
};

QTEST_GUILESS_MAIN(testBuses)
#include "testBuses.moc"
