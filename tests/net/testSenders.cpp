// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/networkSettingsFile.h"
#include "net/SenderPace.h"
#include "net/SenderPolicy.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Senders = clsNetworkSettings::Senders;
using Security = clsNetworkSettings::Security;

class testSenders final : public QObject
{
    Q_OBJECT

private slots:
    void policy_data();
    void policy();
    void pace();
    void settings_data();
    void settings();
    void settingsFile();
};

void testSenders::policy_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<clsNetworkSettings>("settings");
    QTest::addColumn<bool>("admitted");
    const clsNetworkSettings usual;
    const clsNetworkSettings far{.FarSendersOn = true};
    const clsNetworkSettings book{.AcceptFrom = Senders::SendBook};
    const clsNetworkSettings blocked{.FarSendersOn = true, .BlockedSenders = {u"?"_s, u"192.168.1.9"_s, u"fe80::9"_s}};
    for (const QString &near :
         {u"127.0.0.1"_s, u"127.8.9.1"_s, u"::1"_s, u"10.255.0.1"_s, u"172.31.255.255"_s, u"192.168.0.1"_s,
          u"169.254.3.4"_s, u"fe80::1%eth0"_s, u"fd00::5"_s, u"::ffff:192.168.0.1"_s})
        QTest::addRow("nearby: %s", qPrintable(near)) << near << usual << true;
    for (const QString &distant : {u"8.8.8.8"_s, u"172.32.0.1"_s, u"172.15.0.1"_s, u"192.169.0.1"_s, u"11.0.0.1"_s,
                                   u"2001:db8::1"_s, u"::ffff:8.8.8.8"_s, u"0.0.0.0"_s}) {
        QTest::addRow("far: %s", qPrintable(distant)) << distant << usual << false;
        QTest::addRow("widened: %s", qPrintable(distant)) << distant << far << true;
    }
    QTest::newRow("blocked") << u"::ffff:192.168.1.9"_s << blocked << false;
    QTest::newRow("blocked on its link") << u"fe80::9%eth0"_s << blocked << false;
    QTest::newRow("its neighbour") << u"192.168.1.8"_s << blocked << true;
    QTest::newRow("nobody") << u"127.0.0.1"_s << clsNetworkSettings{.AcceptFrom = Senders::Nobody} << false;
    QTest::newRow("address in the book") << u"192.168.1.7"_s << book << true;
    QTest::newRow("name in the book") << u"127.0.0.1"_s << book << true;
    QTest::newRow("not in the book") << u"192.168.1.6"_s << book << false;
    QTest::newRow("in the book, but far") << u"8.8.4.4"_s << book << false;
}

void testSenders::policy()
{
    QFETCH(QString, sender);
    QFETCH(clsNetworkSettings, settings);
    QFETCH(bool, admitted);
    SenderPolicy policy;
    policy.setSettings(settings);
    policy.setBookHosts([] { return QStringList{u"192.168.1.7"_s, u"localhost"_s, u"8.8.4.4"_s}; });
    QList<bool> answers;
    policy.ask(QHostAddress(sender), this, [&answers](bool answer) { answers << answer; });
    QTRY_VERIFY(!answers.isEmpty());
    QCOMPARE(answers, QList{admitted});
}

void testSenders::pace()
{
    SenderPace pace(30, 2s);
    const QHostAddress flooder(u"192.168.1.9"_s);
    const QHostAddress other(u"192.168.1.8"_s);
    SenderPace::Time now{};
    for (int k = 0; k < 30; ++k) {
        QCOMPARE(pace.delay(flooder, now), 0ms);
        pace.count(flooder, now);
    }
    QCOMPARE(pace.delay(flooder, now), 2s);
    QCOMPARE(pace.delay(other, now), 0ms);
    QCOMPARE(pace.delay(flooder, now + 1999ms), 1ms);
    now += 2s;
    QCOMPARE(pace.delay(flooder, now), 0ms);
    pace.count(flooder, now);
    QCOMPARE(pace.delay(flooder, now), 2s);
    // After a minute of rest the whole burst is there again.
    now += 60s;
    for (int k = 0; k < 30; ++k)
        pace.count(flooder, now);
    QCOMPARE(pace.delay(flooder, now), 2s);
    for (int k = 0; k < 100; ++k)
        pace.count(QHostAddress::LocalHost, now);
    QCOMPARE(pace.delay(QHostAddress::LocalHost, now), 0ms);
}

void testSenders::settings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<clsNetworkSettings>("expected");
    const clsNetworkSettings usual;
    QTest::newRow("empty") << QByteArray() << usual;
    QTest::newRow("words in any case") << QByteArray("Accept Notes From=send book\nMail Security = starttls")
                                       << clsNetworkSettings{.AcceptFrom = Senders::SendBook,
                                                             .MailSecurity = Security::StartTls};
    QTest::newRow("what cannot be") << QByteArray("Accept Notes From = all\r\nMail Port = 65536\r\nMail Port = -1\r\n"
                                                  "Mail Security = 7\r\n=\r\nAnnounce This Computer = perhaps")
                                    << usual;
    QTest::newRow("ends at 0") << QByteArray("Mail Port = 25\0\nMail Port = 26", 30)
                               << clsNetworkSettings{.MailPort = 25};
    QTest::newRow("senders") << QByteArray("Blocked Senders = ; 10.0.0.1 ;;10.0.0.2")
                             << clsNetworkSettings{.BlockedSenders = {u"10.0.0.1"_s, u"10.0.0.2"_s}};
    QTest::newRow("noise") << QByteArray(100'000, '=') << usual;
}

void testSenders::settings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(clsNetworkSettings, expected);
    const clsNetworkSettings read = networkSettingsFile::parse(bytes);
    QCOMPARE(networkSettingsFile::build(read), networkSettingsFile::build(expected));
    QVERIFY(read == expected);
}

void testSenders::settingsFile()
{
    const QTemporaryDir folder;
    const QString path = networkSettingsFile::pathIn(folder.path());
    QVERIFY(networkSettingsFile::load(path) == clsNetworkSettings());
    const clsNetworkSettings all{Senders::Nobody, true, {u"10.0.0.1"_s, u"fe80::9"_s}, true,
                                 Security::Tls,   465,  u"\u0141ukasz@post"_s};
    QVERIFY(networkSettingsFile::save(path, all).ok());
    QVERIFY(networkSettingsFile::load(path) == all);
    QVERIFY(!networkSettingsFile::save(folder.filePath(u"none/x"_s), all).ok());
}

QTEST_GUILESS_MAIN(testSenders)
#include "testSenders.moc"
