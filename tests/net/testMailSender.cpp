// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "ScriptedMailServer.h"
#include "net/MailSender.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using End = ExchangeResult::End;
using Line = ScriptedMailServer::Line;
using Replies = QList<QByteArray>;
using Security = clsNetworkSettings::Security;

namespace
{

constexpr ExchangeTimes Patient{20s, 20s, 1ms};
constexpr ExchangeTimes ShortWait{20s, 60ms, 1ms};
constexpr ExchangeTimes ShortWhole{100ms, 20s, 1ms};

const Replies Good{"220 hi\r\n", "250 a\r\n", "250 b\r\n", "250 c\r\n",
                   "250 d\r\n",  "354 e\r\n", "250 f\r\n", "221 g\r\n"};
const Replies GoodTls{"220 hi\r\n", "250-me\r\n250 AUTH LOGIN PLAIN\r\n",
                      "235 in\r\n", "250 b\r\n",
                      "251 c\r\n",  "250 d\r\n",
                      "354 e\r\n",  "250 f\r\n",
                      "221 g\r\n"};

MailMessage message(MailStyle style, const QString &body = u".dot\nend"_s)
{
    return composeMail({u"me@home.x"_s,
                        u"Ann"_s,
                        {},
                        {{u"a@b.c"_s, {}}, {u"d@e.f"_s, {}}},
                        u"Title"_s,
                        body,
                        QDateTime({2026, 3, 1}, {7, 5, 9}, QTimeZone::utc()),
                        u"v.1.0.0"_s},
                       style);
}

Replies with(Replies replies, qsizetype at, const QByteArray &reply)
{
    replies[at] = reply;
    return replies;
}

QSslConfiguration trusting(const QString &authority)
{
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates(QSslCertificate::fromPath(authority));
    return tls;
}

QString identity(const QString &name)
{
    return QString::fromUtf8(NET_TEST_TLS) + u'/' + name + u".pem"_s;
}

/// Runs a talk to its end.
struct Talk
{
    Talk(const MailServer &server, const MailMessage &mail, ExchangeTimes times) : sender(times)
    {
        QObject::connect(&sender, &MailSender::stepChanged, [this](const QString &label) { labels << label; });
        QObject::connect(&sender, &MailSender::progressed, [this](int bytes) { most = std::max(most, bytes); });
        QObject::connect(&sender, &MailSender::finished, [this](const ExchangeResult &r) { results << r; });
        sender.start(server, mail);
    }
    MailSender sender;
    QStringList labels;
    QList<ExchangeResult> results;
    int most = 0;
};

} // namespace

class testMailSender final : public QObject
{
    Q_OBJECT

private slots:
    void dialogue();
    void plain_data();
    void plain();
    void stops_data();
    void stops();
    void secured_data();
    void secured();
    void nothingInTheClear();
    void noServer();
};

void testMailSender::dialogue()
{
    ScriptedMailServer server(Good);
    const MailMessage mail = message(MailStyle::Plain);
    Talk talk({u"127.0.0.1"_s, server.serverPort()}, mail, Patient);
    QTRY_COMPARE(talk.results.size(), 1);
    QCOMPARE(talk.results.first().end, End::Done);
    QCOMPARE(server.heard, (QList<QByteArray>{"HELO Quillets", "mail from: me@home.x", "rcpt to: a@b.c",
                                              "rcpt to: d@e.f", "data", mail.header + "\r\n..dot\r\nend\r\n", "quit"}));
    QCOMPARE(talk.labels, (QStringList{u"Connecting ..."_s, u"Connected ..."_s, u"Sending from information ..."_s,
                                       u"Sending to information ..."_s, u"Sending to information ..."_s,
                                       u"Sending request to send info ..."_s, u"Sending header and data ..."_s,
                                       u"Disconnecting ..."_s, u"Message sent."_s}));
    QCOMPARE(talk.most, int(mail.length()));
}

void testMailSender::plain_data()
{
    QTest::addColumn<Replies>("replies");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<ExchangeTimes>("times");
    QTest::addColumn<QString>("caption"); // Empty: it succeeds.
    for (qsizetype at = 0; at < Good.size(); ++at) {
        QTest::addRow("silent at %d", int(at)) << Good.first(at) << false << ShortWait << u"No Response"_s;
        QTest::addRow("refusal at %d", int(at))
            << with(Good, at, "550 no\r\n") << false << ShortWait << u"No Response"_s;
        QTest::addRow("half a line at %d", int(at))
            << with(Good, at, Good.at(at).chopped(2)) << false << ShortWait << u"No Response"_s;
        // Who has the mail may go without a word.
        QTest::addRow("closes at %d", int(at))
            << Good.first(at) << true << Patient << (at == 7 ? QString() : u"Error"_s);
        QTest::addRow("more lines at %d", int(at))
            << with(Good, at, Good.at(at).first(3) + "-x\r\n" + Good.at(at)) << false << Patient << QString();
        QTest::addRow("another word first at %d", int(at))
            << with(Good, at, "199 x\r\n" + Good.at(at)) << false << Patient << QString();
    }
    QTest::newRow("the whole time") << Good.first(3) << false << ShortWhole << u"Timeout"_s;
    QTest::newRow("all at once") << Replies{"220\r\n250\r\n250\r\n250\r\n250\r\n354\r\n250\r\n221\r\n"} << false
                                 << ShortWait << u"No Response"_s;
    QTest::newRow("one ahead") << with(Good, 1, "250 a\r\n250 b\r\n") << false << Patient << QString();
    QTest::newRow("refusal, one ahead") << with(with(Good, 1, "250 a\r\n250 b\r\n"), 4, "550 no\r\n") << false
                                        << ShortWait << u"No Response"_s;
}

void testMailSender::plain()
{
    QFETCH(Replies, replies);
    QFETCH(bool, closes);
    QFETCH(ExchangeTimes, times);
    QFETCH(QString, caption);
    ScriptedMailServer server(replies);
    server.closesWhenDone = closes;
    Talk talk({u"127.0.0.1"_s, server.serverPort()}, message(MailStyle::Plain), times);
    QTRY_COMPARE(talk.results.size(), 1);
    QCOMPARE(talk.results.first().end, caption.isEmpty() ? End::Done : End::Failed);
    QCOMPARE(talk.labels.last(), caption.isEmpty() ? u"Message sent."_s : u"E-mail canceled"_s);
    if (caption.isEmpty())
        return;
    QCOMPARE(talk.results.first().notice.caption, caption);
    QCOMPARE(talk.results.first().notice.details.contains(u"550 no"_s), replies.contains("550 no\r\n"));
}

void testMailSender::stops_data()
{
    QTest::addColumn<QString>("label");
    for (const char *const label :
         {"Connecting ...", "Connected ...", "Sending from information ...", "Sending to information ...",
          "Sending request to send info ...", "Sending header and data ...", "Disconnecting ..."})
        QTest::newRow(label) << QString::fromLatin1(label);
}

void testMailSender::stops()
{
    QFETCH(QString, label);
    ScriptedMailServer server(Good);
    MailSender sender(Patient);
    QSignalSpy finished(&sender, &MailSender::finished);
    connect(&sender, &MailSender::stepChanged, &sender, [&](const QString &step) {
        if (step == label)
            sender.stop();
    });
    sender.start({u"127.0.0.1"_s, server.serverPort()}, message(MailStyle::Plain));
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().value<ExchangeResult>().end, End::Canceled);
}

void testMailSender::secured_data()
{
    QTest::addColumn<Replies>("replies");
    QTest::addColumn<bool>("startTls");
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<QString>("authority");
    QTest::addColumn<QString>("failure"); // Part of it; empty: it succeeds.
    const QString fit = u"fitting"_s;
    const QString known = u"authority"_s;
    const Replies upgrade = Replies{"220 hi\r\n", "250-me\r\n250 STARTTLS\r\n", "220 go\r\n"} + GoodTls.mid(1);

    QTest::newRow("TLS") << GoodTls << false << fit << known << QString();
    QTest::newRow("STARTTLS") << upgrade << true << fit << known << QString();
    QTest::newRow("LOGIN") << with(with(GoodTls, 1, "250 AUTH=LOGIN\r\n"), 2, "334 a\r\n").first(3) +
                                  Replies{"334 b\r\n"} + GoodTls.mid(2)
                           << false << fit << known << QString();
    QTest::newRow("password refused") << with(GoodTls, 2, "535 bad\r\n") << false << fit << known << u"535 bad"_s;
    QTest::newRow("recipient refused") << with(GoodTls, 4, "450 later\r\n") << false << fit << known << u"450 later"_s;
    QTest::newRow("no log-in known") << with(GoodTls, 1, "250 AUTH X\r\n") << false << fit << known << u"no log-in"_s;
    QTest::newRow("HELO has no log-in") << Replies{"220 a\r\n", "502 b\r\n", "250 c\r\n"} << false << fit << known
                                        << u"no log-in"_s;
    QTest::newRow("no STARTTLS offered") << with(upgrade, 1, "250 me\r\n") << true << fit << known
                                         << u"no encryption"_s;
    QTest::newRow("STARTTLS refused") << with(upgrade, 2, "454 no\r\n") << true << fit << known << u"454 no"_s;
    QTest::newRow("words slipped in") << with(upgrade, 2, "220 go\r\n250 AUTH PLAIN\r\n") << true << fit << known
                                      << u"before the line"_s;
    QTest::newRow("another's certificate") << GoodTls << false << u"another"_s << known << u"host name"_s;
    QTest::newRow("another's, STARTTLS") << upgrade << true << u"another"_s << known << u"host name"_s;
    QTest::newRow("unknown authority") << GoodTls << false << fit << u"none"_s << u"certificate"_s;
}

void testMailSender::secured()
{
    QFETCH(Replies, replies);
    QFETCH(bool, startTls);
    QFETCH(QString, certificate);
    QFETCH(QString, authority);
    QFETCH(QString, failure);
    ScriptedMailServer server(replies, startTls ? Line::StartTls : Line::Tls, identity(certificate));
    const MailServer mine{u"localhost"_s, server.serverPort(), startTls ? Security::StartTls : Security::Tls,
                          u"me"_s,        u"secret"_s,         trusting(identity(authority))};
    Talk talk(mine, message(MailStyle::Strict), Patient);
    QTRY_COMPARE(talk.results.size(), 1);
    const ExchangeResult result = talk.results.first();
    QCOMPARE(result.end, failure.isEmpty() ? End::Done : End::Failed);
    QVERIFY2(result.notice.text.contains(failure, Qt::CaseInsensitive), qPrintable(result.notice.text));
    QVERIFY(!(result.notice.text + result.notice.details).contains(u"secret"_s));
    QCOMPARE(server.heard.contains("mail from:<me@home.x>"), failure.isEmpty() || failure == u"450 later"_s);
}

/// Who listens to the line before it is encrypted learns no more than that somebody wants to encrypt it.
void testMailSender::nothingInTheClear()
{
    ScriptedMailServer server({"220 hi\r\n", "250-AUTH PLAIN\r\n250 STARTTLS\r\n", "220 go\r\n"});
    Talk talk({u"localhost"_s, server.serverPort(), Security::StartTls, u"me"_s, u"secret"_s},
              message(MailStyle::Strict), ShortWait);
    QTRY_COMPARE(talk.results.size(), 1);
    QCOMPARE(talk.results.first().end, End::Failed);
    QCOMPARE(server.heard, (QList<QByteArray>{"EHLO Quillets", "STARTTLS"}));
}

void testMailSender::noServer()
{
    quint16 port = 0;
    {
        ScriptedMailServer server({});
        port = server.serverPort();
    }
    Talk talk({u"127.0.0.1"_s, port}, message(MailStyle::Plain), Patient);
    QTRY_COMPARE(talk.results.size(), 1);
    QVERIFY(talk.results.first().notice.text.startsWith(u"Error sending e-mail.\nServer response: "_s));
    QCOMPARE(talk.results.first().notice.caption, u"Error"_s);
}

QTEST_GUILESS_MAIN(testMailSender)
#include "testMailSender.moc"
