// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemKeyring.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QLibrary>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

/// A secret service that hears everything and never answers, as while it asks its user.
class SilentService final : public QDBusVirtualObject
{
public:
    int calls = 0;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        message.setDelayedReply(true);
        ++calls;
        return true;
    }
};

/// A bus that starts no service by itself: that of whoever runs the test is none of its business.
constexpr char BusSettings[] = "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                               "<policy context='default'><allow send_destination='*'/><allow eavesdrop='true'/>"
                               "<allow own='*'/></policy></busconfig>";

} // namespace

class testKeyring final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void serviceThatGoes();
    void loopThatHearsNothing();

private:
    QTemporaryDir m_folder;
    QProcess m_bus;
    SilentService m_service;
    SystemKeyring m_keyring;
};

void testKeyring::initTestCase()
{
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty() || !QLibrary(u"secret-1"_s, 0).load())
        QSKIP("There is no dbus-daemon, or no library of the secret service.");
    QFile settings(m_folder.filePath(u"bus.conf"_s));
    QVERIFY(settings.open(QIODevice::WriteOnly) && settings.write(BusSettings) > 0);
    settings.close();
    m_bus.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--print-address"_s, u"--config-file="_s + settings.fileName()});
    QVERIFY(m_bus.waitForReadyRead());
    const QByteArray address = m_bus.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qunsetenv("XDG_CURRENT_DESKTOP");
    QDBusConnection desktop = QDBusConnection::connectToBus(QString::fromLocal8Bit(address), u"desktop"_s);
    QVERIFY(desktop.registerVirtualObject(u"/"_s, &m_service, QDBusConnection::SubPath));
    QVERIFY(desktop.registerService(u"org.freedesktop.secrets"_s));
}

void testKeyring::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(u"desktop"_s);
    m_bus.terminate();
    m_bus.waitForFinished();
}

/// Neither the question that is out nor the next one waits for it.
void testKeyring::serviceThatGoes()
{
    int answers = 0;
    const auto found = [&answers](const QString &password) { answers += password.isEmpty() ? 1 : 100; };
    m_keyring.read(u"ann"_s, this, found);
    QTRY_VERIFY(m_service.calls > 0);
    QCOMPARE(answers, 0);
    QVERIFY(QDBusConnection(u"desktop"_s).unregisterService(u"org.freedesktop.secrets"_s));
    QTRY_COMPARE(answers, 1);
    m_keyring.read(u"ann"_s, this, found);
    QTRY_COMPARE(answers, 2);
}

/// The library would wait for ever in it.
void testKeyring::loopThatHearsNothing()
{
    if (qEnvironmentVariableIsSet("QT_NO_GLIB")) {
        bool isAnswered = false;
        m_keyring.read(u"ann"_s, this, [&isAnswered](const QString &) { isAnswered = true; });
        QVERIFY(!isAnswered);
        QTRY_VERIFY(isAnswered);
        return;
    }
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_NO_GLIB"_s, u"1"_s);
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(), {u"loopThatHearsNothing"_s});
    QVERIFY(other.waitForFinished());
    QVERIFY2(other.exitCode() == 0, other.readAllStandardOutput().constData());
}

QTEST_MAIN(testKeyring)
#include "testKeyring.moc"
