// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/DesktopActions.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

class testDesktopActions final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void actions();

private:
    QProcess m_bus;
};

/// A bus of its own.
void testDesktopActions::initTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty())
        QSKIP("There is no dbus-daemon.");
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    QVERIFY(m_bus.waitForReadyRead());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void testDesktopActions::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(u"desktop"_s);
    m_bus.terminate();
    m_bus.waitForFinished();
}

void testDesktopActions::actions()
{
    DesktopActions actions;
    QVERIFY(actions.publish());
    QSignalSpy activated(&actions, &DesktopActions::activated);
    QSignalSpy wanted(&actions, &DesktopActions::actionWanted);
    QDBusConnection desktop =
        QDBusConnection::connectToBus(QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), u"desktop"_s);
    const auto call = [&desktop](const QString &method, const QVariantList &arguments) {
        auto message = QDBusMessage::createMethodCall(u"org.quillets.Quillets"_s, u"/org/quillets/Quillets"_s,
                                                      u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        QDBusPendingCall answer = desktop.asyncCall(message);
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

QTEST_GUILESS_MAIN(testDesktopActions)
#include "testDesktopActions.moc"
