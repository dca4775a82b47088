// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/PortalKeys.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

/// Answers as a portal does, in whose desktop the user says yes or no.
class Portal final : public QDBusVirtualObject
{
public:
    bool says = true;
    QStringList calls;
    QDBusMessage bound;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        calls.append(message.member());
        if (message.member() == u"Close"_s)
            return true;
        const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
        const QString request = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            message.service().mid(1).replace(u'.', u'_'), options.value(u"handle_token"_s).toString());
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        if (message.member() == u"BindShortcuts"_s)
            bound = message;
        auto response = QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << (says ? 0U : 1U) << QVariantMap{{u"session_handle"_s, u"/session/1"_s}};
        return connection.send(response);
    }
};

} // namespace

class testPortalKeys final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void withoutAPortal();
    void wantedAndPressed();
    void refusedByTheUser();

private:
    QDBusConnection desktop() const { return QDBusConnection(u"desktop"_s); }

    QProcess m_bus;
    Portal m_portal;
};

void testPortalKeys::initTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty())
        QSKIP("There is no dbus-daemon.");
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    QVERIFY(m_bus.waitForReadyRead());
    const QByteArray address = m_bus.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QVERIFY(QDBusConnection::connectToBus(QString::fromLocal8Bit(address), u"desktop"_s).isConnected());
}

void testPortalKeys::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(u"desktop"_s);
    m_bus.terminate();
    m_bus.waitForFinished();
}

void testPortalKeys::withoutAPortal()
{
    QVERIFY(!PortalKeys::isThere());
    PortalKeys keys;
    QSignalSpy refused(&keys, &PortalKeys::refused);
    keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Ctrl+Alt+N"_s)}});
    QTRY_COMPARE(refused.count(), 1);
    QVERIFY(desktop().registerVirtualObject(u"/"_s, &m_portal, QDBusConnection::SubPath));
    QVERIFY(desktop().registerService(u"org.freedesktop.portal.Desktop"_s));
    QVERIFY(PortalKeys::isThere());
}

void testPortalKeys::wantedAndPressed()
{
    PortalKeys keys;
    QSignalSpy pressed(&keys, &PortalKeys::pressed);
    keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Ctrl+Alt+N"_s)}, {u"1"_s, u"None"_s, QKeySequence()}});
    QTRY_COMPARE(m_portal.calls, (QStringList{u"CreateSession"_s, u"BindShortcuts"_s}));
    QCOMPARE(m_portal.bound.signature(), u"oa(sa{sv})sa{sv}"_s);
    const auto press = [this](const QString &session, const QString &id) {
        auto signal = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                                 u"org.freedesktop.portal.GlobalShortcuts"_s, u"Activated"_s);
        signal << QVariant::fromValue(QDBusObjectPath(session)) << id << 1ULL << QVariantMap();
        desktop().send(signal);
    };
    press(u"/session/2"_s, u"0"_s); // Another program's.
    press(u"/session/1"_s, u"0"_s);
    QTRY_COMPARE(pressed, (QList<QVariantList>{{u"0"_s}}));
    keys.want({});
    QTRY_COMPARE(m_portal.calls.constLast(), u"Close"_s);
    press(u"/session/1"_s, u"0"_s);
    QTest::qWait(50);
    QCOMPARE(pressed.count(), 1);
}

void testPortalKeys::refusedByTheUser()
{
    m_portal.says = false;
    m_portal.calls.clear();
    PortalKeys keys;
    QSignalSpy refused(&keys, &PortalKeys::refused);
    keys.want({{u"0"_s, u"New note"_s, QKeySequence(u"Meta+F5"_s)}});
    QTRY_COMPARE(refused.count(), 1);
    QCOMPARE(m_portal.calls, QStringList{u"CreateSession"_s});
}

QTEST_GUILESS_MAIN(testPortalKeys)
#include "testPortalKeys.moc"
