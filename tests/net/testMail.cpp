// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "ScriptedMailServer.h"
#include "net/MailSender.h"
#include "net/SmtpReplies.h"
#include "net/mailText.h"
#include "support/compareRow.h"
#include "support/rows.h"

#include <QProcess>
#include <QSignalSpy>
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
const Replies GoodTls =
    Replies{"220 hi\r\n", "250-me\r\n250 AUTH LOGIN PLAIN\r\n", "235 in\r\n", "250 b\r\n", "251 c\r\n"} + Good.mid(4);

MailDraft draft()
{
    return {u"me@home.x"_s,
            u"Ann Lee"_s,
            u"Org"_s,
            {{u"a@b.c"_s, u"Bob"_s}, {u"d@e.f"_s, {}}},
            u"Shopping"_s,
            u".milk\nbread"_s,
            QDateTime({2026, 3, 1}, {7, 5, 9}, QTimeZone(5400)),
            u"v.1.0.0"_s};
}

bool hasShortLines(const QByteArray &text)
{
    for (const QByteArray &line : QByteArray(text).replace("\r\n", "\n").split('\n'))
        if (line.size() > mailText::LongestLine || line.contains('\r'))
            return false;
    return true;
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

/// A talk, and all that it tells.
struct Talk
{
    Talk(const MailServer &server, const MailMessage &mail, ExchangeTimes times = Patient) : sender(times)
    {
        QObject::connect(&sender, &MailSender::stepChanged, [this](const QString &label) { labels << label; });
        QObject::connect(&sender, &MailSender::progressed, [this](int bytes) { most = std::max(most, bytes); });
        QObject::connect(&sender, &MailSender::finished, [this](const ExchangeResult &r) { results << r; });
        sender.start(server, mail);
    }
    /// Without security, to somebody on this computer.
    explicit Talk(quint16 port, ExchangeTimes times = Patient)
        : Talk({u"127.0.0.1"_s, port}, composeMail(draft(), MailStyle::Plain), times)
    {}

    MailSender sender;
    QStringList labels;
    QList<ExchangeResult> results;
    int most = 0;
};

} // namespace

/// A note as a mail, and the talk with the server that takes it.
class testMail final : public QObject
{
    Q_OBJECT

private slots:
    void plainMail()
    {
        const MailMessage mail = composeMail(draft(), MailStyle::Plain);
        QCOMPARE(mail.sender, QByteArray("mail from: me@home.x"));
        QCOMPARE(mail.recipientLines, (QList<QByteArray>{"rcpt to: a@b.c", "rcpt to: d@e.f"}));
        QCOMPARE(mail.header, QByteArray("Date: Sun, 01 Mar 2026 07:05:09 -0600\r\n"
                                         "X-Mailer:  Quillets v.1.0.0 https://quillets.org\r\n"
                                         "To: Bob <a@b.c>, d@e.f\r\nFrom: Ann Lee <me@home.x>\r\n"
                                         "Subject: Shopping\r\nOrganization: Org\r\n"));
        QCOMPARE(mail.body, QByteArray(".milk\r\nbread\r\n"));
    }

    void strictMail()
    {
        MailDraft bare = draft();
        bare.senderName = u" \r\n"_s;
        bare.organization.clear();
        const MailMessage mail = composeMail(bare, MailStyle::Strict);
        QCOMPARE(mail.sender, QByteArray("mail from:<me@home.x>"));
        QVERIFY(mail.header.startsWith("Date: Sun, 01 Mar 2026 07:05:09 +0130\r\n"));
        QVERIFY(mail.header.contains("\r\nFrom: Quillets User <me@home.x>\r\n"));
        QVERIFY(!mail.header.contains("Organization"));
    }

    void injections()
    {
        const QString evil = u"x\r\nrcpt to: y@z\r.\n\0quit\u2028Bcc: q"_s;
        const MailDraft hostile{evil, evil, evil, {{evil, evil}}, evil, evil, draft().date, evil};
        for (const MailStyle style : {MailStyle::Plain, MailStyle::Strict}) {
            const MailMessage mail = composeMail(hostile, style);
            QCOMPARE(mail.header.count("\r\n"), 6);
            for (const QByteArray &line : {mail.sender, mail.recipientLines.first()})
                QVERIFY(!line.contains('\r') && !line.contains('\n') && !line.contains('\0'));
        }
        QCOMPARE(mailText::dotStuffed(".\r\na\r\n..b\r\n.\r\n"), QByteArray("..\r\na\r\n...b\r\n..\r\n"));
    }

    void encodedTexts()
    {
        const auto row = [](const char *name, const QString &text) {
            MailDraft wide = draft();
            wide.subject = wide.senderName = wide.organization = wide.recipients.first().name = text;
            wide.recipients.resize(300, {u"d@e.f"_s, {}});
            QVERIFY2(hasShortLines(composeMail(wide, MailStyle::Plain).header), name);
            QByteArray words;
            for (const QByteArray &word : mailText::headerValue(text).split(' ')) {
                QVERIFY2(word.size() <= 77, name);
                words += QByteArray::fromBase64(word.trimmed().chopped(2).mid(10));
            }
            compareRow(name, QString::fromUtf8(words), QString::fromUtf8(text.toUtf8()));
        };
        row("umlauts", u"Gr\u00FC\u00DFe"_s);
        row("long, beyond the basic plane", u"\U0001F600x"_s.repeated(500));
        row("long ASCII without blanks", QString(200'000, u'a'));
        row("half a pair", QString(100, QChar(0xD83D)));
    }

    void bodies()
    {
        const auto row = [](const char *name, const QString &body, const QString &sent, bool isPlain) {
            MailDraft mail = draft();
            mail.body = body;
            const MailMessage message = composeMail(mail, MailStyle::Plain);
            const bool isEncoded =
                message.header.endsWith("\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
                                        "Content-Transfer-Encoding: base64\r\n");
            QVERIFY2(isEncoded != isPlain && hasShortLines(message.body) && message.body.endsWith("\r\n"), name);
            compareRow(name, QString::fromUtf8(isPlain ? message.body : QByteArray::fromBase64(message.body)), sent);
        };
        row("line ends", u"a\rb\nc\r\nd\u2029e"_s, u"a\r\nb\r\nc\r\nd\r\ne\r\n"_s, true);
        row("empty", {}, u"\r\n"_s, true);
        row("NUL", u"a\0b"_s, u"ab\r\n"_s, true);
        row("998", QString(998, u'x'), QString(998, u'x') + u"\r\n"_s, true);
        row("999", QString(999, u'x'), QString(999, u'x') + u"\r\n"_s, false);
        row("wide", u"caf\u00E9\n."_s, u"caf\u00E9\r\n.\r\n"_s, false);
        row("control", u"a\x1b[31m"_s, u"a\x1b[31m\r\n"_s, false);
    }

    void replies()
    {
        const auto row = [](const char *name, const QByteArray &bytes, const QList<int> &codes) {
            for (const qsizetype step : {bytes.size(), qsizetype(1)}) {
                SmtpReplies replies;
                for (qsizetype at = 0; at < bytes.size(); at += step)
                    replies.add(bytes.mid(at, step));
                QList<int> taken;
                while (const auto reply = replies.take())
                    taken << reply->code;
                compareRow(name, taken, codes);
            }
        };
        row("one", "220 a\r\n", {220});
        row("many lines", "250-a\r\n250-b\r\n250 c\r\n", {250});
        row("the last line's code", "250-a\r\n550 c\r\n", {550});
        row("half a line", "250 a\r\n250 b", {250});
        row("CR only, LF only", "220 a\r250 b\n221\r", {220, 250, 221});
        row("not whole", "250-a\r\n250-b\r\n", {});
        row("no codes", "hello\r\n25\r\n-12 x\r\n", {0, 0, 0});
        row("a megabyte", "250 " + QByteArray(1'000'000, 'x') + "\r\n221 b\r\n", {250, 221});
    }

    void dialogue()
    {
        ScriptedMailServer server(Good);
        const Talk talk(server.serverPort());
        QTRY_COMPARE(talk.results.size(), 1);
        QCOMPARE(talk.results.first().end, End::Done);
        const MailMessage mail = composeMail(draft(), MailStyle::Plain);
        QCOMPARE(server.heard, (Replies{"HELO Quillets", "mail from: me@home.x", "rcpt to: a@b.c", "rcpt to: d@e.f",
                                        "data", mail.header + "\r\n..milk\r\nbread\r\n", "quit"}));
        QCOMPARE(talk.labels, (QStringList{u"Connecting ..."_s, u"Connected ..."_s, u"Sending from information ..."_s,
                                           u"Sending to information ..."_s, u"Sending to information ..."_s,
                                           u"Sending request to send info ..."_s, u"Sending header and data ..."_s,
                                           u"Disconnecting ..."_s, u"Message sent."_s}));
        QCOMPARE(talk.most, int(mail.length()));
    }

    void plain_data()
    {
        const Rows<Replies, bool, ExchangeTimes, QString> all; // replies, closes, times, caption or nothing
        const auto row = [&all](const QString &name, qsizetype at, const Replies &replies, const QString &caption = {},
                                ExchangeTimes times = Patient) {
            all(u"%1 at %2"_s.arg(name).arg(at), replies, name == u"closes", times, caption);
        };
        for (qsizetype at = 0; at < Good.size(); ++at) {
            const QByteArray &reply = Good.at(at);
            row(u"silent"_s, at, Good.first(at), u"No Response"_s, ShortWait);
            row(u"refusal"_s, at, with(Good, at, "550 no\r\n"), u"No Response"_s, ShortWait);
            row(u"half a line"_s, at, with(Good, at, reply.chopped(2)), u"No Response"_s, ShortWait);
            // Who has the mail may go without a word.
            row(u"closes"_s, at, Good.first(at), at == 7 ? QString() : u"Error"_s);
            row(u"more lines"_s, at, with(Good, at, reply.first(3) + "-x\r\n" + reply));
            row(u"another word first"_s, at, with(Good, at, "199 x\r\n" + reply));
        }
        row(u"the whole time"_s, 3, Good.first(3), u"Timeout"_s, ShortWhole);
        // What was said before a command is no reply to it.
        row(u"all"_s, 0, {"220\r\n250\r\n250\r\n250\r\n250\r\n354\r\n250\r\n221\r\n"}, u"No Response"_s, ShortWait);
        const Replies ahead = with(Good, 1, "250 a\r\n250 b\r\n");
        row(u"one ahead"_s, 1, ahead);
        row(u"one ahead of a refusal"_s, 4, with(ahead, 4, "550 no\r\n"), u"No Response"_s, ShortWait);
    }

    void plain()
    {
        const auto [replies, closes, times, caption] = fetchRow<Replies, bool, ExchangeTimes, QString>();
        ScriptedMailServer server(replies);
        server.closesWhenDone = closes;
        const Talk talk(server.serverPort(), times);
        QTRY_COMPARE(talk.results.size(), 1);
        QCOMPARE(talk.results.first().end, caption.isEmpty() ? End::Done : End::Failed);
        QCOMPARE(talk.labels.last(), caption.isEmpty() ? u"Message sent."_s : u"E-mail canceled"_s);
        if (caption.isEmpty())
            return;
        QCOMPARE(talk.results.first().notice.caption, caption);
        QCOMPARE(talk.results.first().notice.details.contains(u"550 no"_s), replies.contains("550 no\r\n"));
    }

    void stops()
    {
        for (const QString &label : {u"Connecting ..."_s, u"Connected ..."_s, u"Sending from information ..."_s,
                                     u"Sending to information ..."_s, u"Sending request to send info ..."_s,
                                     u"Sending header and data ..."_s, u"Disconnecting ..."_s}) {
            ScriptedMailServer server(Good);
            MailSender sender(Patient);
            const QSignalSpy finished(&sender, &MailSender::finished);
            connect(&sender, &MailSender::stepChanged, &sender, [&](const QString &step) {
                if (step == label)
                    sender.stop();
            });
            sender.start({u"127.0.0.1"_s, server.serverPort()}, composeMail(draft(), MailStyle::Plain));
            QTRY_VERIFY2(finished.size() == 1, qPrintable(label));
            compareRow(qPrintable(label), finished.first().first().value<ExchangeResult>().end, End::Canceled);
        }
    }

    void secured_data()
    {
        const Rows<Line, Replies, QString, QString, QString> all; // line, replies, failure, certificate, authority
        const auto row = [&all](const char *name, Line line, const Replies &replies, const QString &failure = {},
                                const QString &certificate = u"fitting"_s, const QString &authority = u"authority"_s) {
            all(name, line, replies, failure, certificate, authority);
        };
        const Replies upgrade = Replies{"220 hi\r\n", "250-me\r\n250 STARTTLS\r\n", "220 go\r\n"} + GoodTls.mid(1);
        const Replies login =
            GoodTls.first(1) + Replies{"250 AUTH=LOGIN\r\n", "334 a\r\n", "334 b\r\n"} + GoodTls.mid(2);
        row("TLS", Line::Tls, GoodTls);
        row("STARTTLS", Line::StartTls, upgrade);
        row("LOGIN", Line::Tls, login);
        row("password refused", Line::Tls, with(GoodTls, 2, "535 bad\r\n"), u"535 bad"_s);
        row("recipient refused", Line::Tls, with(GoodTls, 4, "450 later\r\n"), u"450 later"_s);
        row("no log-in known", Line::Tls, with(GoodTls, 1, "250 AUTH X\r\n"), u"no log-in"_s);
        row("HELO has no log-in", Line::Tls, {"220 a\r\n", "502 b\r\n", "250 c\r\n"}, u"no log-in"_s);
        row("no STARTTLS offered", Line::StartTls, with(upgrade, 1, "250 me\r\n"), u"no encryption"_s);
        row("STARTTLS refused", Line::StartTls, with(upgrade, 2, "454 no\r\n"), u"454 no"_s);
        row("words slipped in", Line::StartTls, with(upgrade, 2, "220 go\r\n250 AUTH PLAIN\r\n"), u"before the line"_s);
        row("another's certificate", Line::Tls, GoodTls, u"host name"_s, u"another"_s);
        row("another's, STARTTLS", Line::StartTls, upgrade, u"host name"_s, u"another"_s);
        row("unknown authority", Line::Tls, GoodTls, u"certificate"_s, u"fitting"_s, u"none"_s);
    }

    void secured()
    {
        const auto [line, replies, failure, certificate, authority] =
            fetchRow<Line, Replies, QString, QString, QString>();
        ScriptedMailServer server(replies, line, identity(certificate));
        const Security security = line == Line::Tls ? Security::Tls : Security::StartTls;
        const MailServer mine{u"localhost"_s, server.serverPort(), security,
                              u"me"_s,        u"secret"_s,         trusting(identity(authority))};
        const Talk talk(mine, composeMail(draft(), MailStyle::Strict));
        QTRY_COMPARE(talk.results.size(), 1);
        const ExchangeResult result = talk.results.first();
        QCOMPARE(result.end, failure.isEmpty() ? End::Done : End::Failed);
        QVERIFY2(result.notice.text.contains(failure, Qt::CaseInsensitive), qPrintable(result.notice.text));
        QVERIFY(!(result.notice.text + result.notice.details).contains(u"secret"_s));
        QCOMPARE(server.heard.contains("mail from:<me@home.x>"), failure.isEmpty() || failure == u"450 later"_s);
    }

    /// Who listens to the line before it is encrypted learns no more than that somebody wants to encrypt it.
    void nothingInTheClear()
    {
        ScriptedMailServer server({"220 hi\r\n", "250-AUTH PLAIN\r\n250 STARTTLS\r\n", "220 go\r\n"});
        const Talk talk({u"localhost"_s, server.serverPort(), Security::StartTls, u"me"_s, u"secret"_s},
                        composeMail(draft(), MailStyle::Strict), ShortWait);
        QTRY_COMPARE(talk.results.size(), 1);
        QCOMPARE(talk.results.first().end, End::Failed);
        QCOMPARE(server.heard, (Replies{"EHLO Quillets", "STARTTLS"}));
    }

    void noServer()
    {
        const quint16 port = ScriptedMailServer({}).serverPort();
        const Talk talk(port);
        QTRY_COMPARE(talk.results.size(), 1);
        QVERIFY(talk.results.first().notice.text.startsWith(u"Error sending e-mail.\nServer response: "_s));
        QCOMPARE(talk.results.first().notice.caption, u"Error"_s);
    }

    /// Against a server of others, where the system's Python has one.
    void otherServers_data()
    {
        if (QByteArray(PYTHON).isEmpty())
            QSKIP("There is no aiosmtpd.");
        // security, certificate, password, part of the failure; empty: the mail arrives
        const Rows<Security, QString, QString, QString> row;
        const QString fit = u"fitting"_s;
        const QString right = u"secret"_s;
        row("plain", Security::None, fit, {}, {});
        for (const Security security : {Security::StartTls, Security::Tls}) {
            const QString name = security == Security::Tls ? u"TLS"_s : u"STARTTLS"_s;
            row(name, security, fit, right, {});
            row(name + u", wrong password"_s, security, fit, u"guess"_s, u"535"_s);
            row(name + u", another's certificate"_s, security, u"another"_s, right, u"host name"_s);
        }
        row("nobody who knows the server", Security::Tls, {}, right, u"certificate"_s);
    }

    void otherServers()
    {
        const auto [security, certificate, password, failure] = fetchRow<Security, QString, QString, QString>();
        const QStringList words{u"none"_s, u"starttls"_s, u"tls"_s};
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(PYTHON), {QStringLiteral(MAIL_SERVER), words.at(static_cast<int>(security)),
                                               identity(certificate.isEmpty() ? u"fitting"_s : certificate)});
        QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 20'000);
        MailServer server{u"localhost"_s, process.readLine().trimmed().toUShort(), security};
        server.user = security == Security::None ? QString() : u"ann"_s;
        server.password = password;
        if (!certificate.isEmpty())
            server.tls = trusting(identity(u"authority"_s));
        MailDraft mail = draft();
        mail.body = u".one\n\u00E9\n"_s;
        const Talk talk(server, composeMail(mail, server.style()));
        QTRY_COMPARE_WITH_TIMEOUT(talk.results.size(), 1, 20'000);
        const ExchangeResult result = talk.results.first();
        QVERIFY2(result.notice.text.contains(failure), qPrintable(result.notice.text));
        QCOMPARE(result.end, failure.isEmpty() ? End::Done : End::Failed);
        process.closeWriteChannel();
        QCOMPARE(process.canReadLine(), failure.isEmpty());
        QCOMPARE(process.readLine().contains("Subject: Shopping\\r\\n"), failure.isEmpty());
        process.kill();
        process.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(testMail)
#include "testMail.moc"
