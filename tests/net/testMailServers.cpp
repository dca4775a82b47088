// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/MailSender.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using Security = clsNetworkSettings::Security;

/// Mails to a server that is not our own.
class testMailServers final : public QObject
{
    Q_OBJECT

private slots:
    void mails_data();
    void mails();
};

void testMailServers::mails_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("failure"); // Empty: the mail arrives.
    const QString fit = u"fitting"_s;
    const QString right = u"secret"_s;
    QTest::newRow("plain") << Security::None << fit << QString() << QString();
    for (const Security security : {Security::StartTls, Security::Tls}) {
        const char *name = security == Security::Tls ? "TLS" : "STARTTLS";
        QTest::addRow("%s", name) << security << fit << right << QString();
        QTest::addRow("%s, wrong password", name) << security << fit << u"guess"_s << u"535"_s;
        QTest::addRow("%s, another's certificate", name) << security << u"another"_s << right << u"host name"_s;
    }
    QTest::newRow("nobody who knows the server") << Security::Tls << QString() << right << u"certificate"_s;
}

void testMailServers::mails()
{
    QFETCH(Security, security);
    QFETCH(QString, certificate);
    QFETCH(QString, password);
    QFETCH(QString, failure);
    const QString tls = QStringLiteral(NET_TEST_TLS "/");
    const QString presented = certificate.isEmpty() ? u"fitting"_s : certificate;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList words{u"none"_s, u"starttls"_s, u"tls"_s};
    process.start(QStringLiteral(PYTHON),
                  {QStringLiteral(MAIL_SERVER), words.at(static_cast<int>(security)), tls + presented + u".pem"_s});
    QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 20'000);
    MailServer server{u"localhost"_s, process.readLine().trimmed().toUShort(), security};
    server.user = security == Security::None ? QString() : u"ann"_s;
    server.password = password;
    if (!certificate.isEmpty()) {
        server.tls = QSslConfiguration::defaultConfiguration();
        server.tls->setCaCertificates(QSslCertificate::fromPath(tls + u"authority.pem"_s));
    }
    MailDraft draft;
    draft.senderAddress = u"me@home.example"_s;
    draft.recipients = {{u"a@b.example"_s, u"Zo\u00EB"_s}, {u"c@d.example"_s, {}}};
    draft.subject = u"Title"_s;
    draft.body = u".one\n\u00E9\n"_s;
    draft.date = QDateTime({2026, 3, 1}, {7, 5, 9}, QTimeZone::utc());
    MailSender sender({20s, 20s});
    QSignalSpy spy(&sender, &MailSender::finished);
    sender.start(server, composeMail(draft, server.style()));
    QVERIFY(spy.wait(20'000));
    const auto result = spy.first().first().value<ExchangeResult>();
    QVERIFY2(result.notice.text.contains(failure), qPrintable(result.notice.text));
    QCOMPARE(result.end, failure.isEmpty() ? ExchangeResult::End::Done : ExchangeResult::End::Failed);
    process.closeWriteChannel();
    QCOMPARE(process.canReadLine(), failure.isEmpty());
    const QJsonObject mail = QJsonDocument::fromJson(process.readLine()).object();
    if (failure.isEmpty())
        QVERIFY(mail.value(u"content"_s).toString().contains(u"Subject: Title\r\n"));
    process.kill();
    process.waitForFinished();
}

QTEST_GUILESS_MAIN(testMailServers)
#include "testMailServers.moc"
