// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/MailMessage.h"
#include "net/SmtpReplies.h"
#include "net/mailText.h"

#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace
{

MailDraft draft()
{
    return {u"me@home.x"_s,
            u"Ann Lee"_s,
            u"Org"_s,
            {{u"a@b.c"_s, u"Bob"_s}, {u"d@e.f"_s, {}}},
            u"Shopping"_s,
            u"milk\nbread"_s,
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

} // namespace

class testMailMessage final : public QObject
{
    Q_OBJECT

private slots:
    void plainMail();
    void strictMail();
    void injections();
    void encodedTexts_data();
    void encodedTexts();
    void bodies_data();
    void bodies();
    void replies_data();
    void replies();
};

void testMailMessage::plainMail()
{
    const MailMessage mail = composeMail(draft(), MailStyle::Plain);
    QCOMPARE(mail.sender, QByteArray("mail from: me@home.x"));
    QCOMPARE(mail.recipientLines, (QList<QByteArray>{"rcpt to: a@b.c", "rcpt to: d@e.f"}));
    QCOMPARE(mail.header, QByteArray("Date: Sun, 01 Mar 2026 07:05:09 -0600\r\n"
                                     "X-Mailer:  Quillets v.1.0.0 https://quillets.org\r\n"
                                     "To: Bob <a@b.c>, d@e.f\r\nFrom: Ann Lee <me@home.x>\r\n"
                                     "Subject: Shopping\r\nOrganization: Org\r\n"));
    QCOMPARE(mail.body, QByteArray("milk\r\nbread\r\n"));
}

void testMailMessage::strictMail()
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

void testMailMessage::injections()
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

void testMailMessage::encodedTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("umlauts") << u"Gr\u00FC\u00DFe"_s;
    QTest::newRow("long, beyond the basic plane") << QString(u"\U0001F600x"_s).repeated(500);
    QTest::newRow("long ASCII without blanks") << QString(200'000, u'a');
    QTest::newRow("half a pair") << QString(QChar(0xD83D)).repeated(100);
}

void testMailMessage::encodedTexts()
{
    QFETCH(QString, text);
    MailDraft wide = draft();
    wide.subject = wide.senderName = wide.organization = wide.recipients.first().name = text;
    wide.recipients.resize(300, {u"d@e.f"_s, {}});
    const MailMessage mail = composeMail(wide, MailStyle::Plain);
    QVERIFY(hasShortLines(mail.header));
    QByteArray words;
    for (const QByteArray &word : mailText::headerValue(text).split(' ')) {
        QVERIFY(word.size() <= 77);
        words += QByteArray::fromBase64(word.trimmed().chopped(2).mid(10));
    }
    QCOMPARE(QString::fromUtf8(words), QString::fromUtf8(text.toUtf8()));
}

void testMailMessage::bodies_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<bool>("plain");
    QTest::newRow("line ends") << u"a\rb\nc\r\nd\u2029e"_s << u"a\r\nb\r\nc\r\nd\r\ne\r\n"_s << true;
    QTest::newRow("empty") << QString() << u"\r\n"_s << true;
    QTest::newRow("NUL") << QString(u"a\0b"_s) << u"ab\r\n"_s << true;
    QTest::newRow("998") << QString(998, u'x') << QString(998, u'x') + u"\r\n"_s << true;
    QTest::newRow("999") << QString(999, u'x') << QString(999, u'x') + u"\r\n"_s << false;
    QTest::newRow("wide") << u"caf\u00E9\n."_s << u"caf\u00E9\r\n.\r\n"_s << false;
    QTest::newRow("control") << u"a\x1b[31m"_s << u"a\x1b[31m\r\n"_s << false;
}

void testMailMessage::bodies()
{
    QFETCH(QString, body);
    QFETCH(QString, sent);
    QFETCH(bool, plain);
    MailDraft mail = draft();
    mail.body = body;
    const MailMessage message = composeMail(mail, MailStyle::Plain);
    QCOMPARE(message.header.endsWith("\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
                                     "Content-Transfer-Encoding: base64\r\n"),
             !plain);
    QCOMPARE(QString::fromUtf8(plain ? message.body : QByteArray::fromBase64(message.body)), sent);
    QVERIFY(hasShortLines(message.body) && message.body.endsWith("\r\n"));
}

void testMailMessage::replies_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("codes");
    QTest::newRow("one") << QByteArray("220 a\r\n") << QList{220};
    QTest::newRow("many lines") << QByteArray("250-a\r\n250-b\r\n250 c\r\n") << QList{250};
    QTest::newRow("the last line's code") << QByteArray("250-a\r\n550 c\r\n") << QList{550};
    QTest::newRow("half a line") << QByteArray("250 a\r\n250 b") << QList{250};
    QTest::newRow("CR only, LF only") << QByteArray("220 a\r250 b\n221\r") << QList{220, 250, 221};
    QTest::newRow("not whole") << QByteArray("250-a\r\n250-b\r\n") << QList<int>();
    QTest::newRow("no codes") << QByteArray("hello\r\n25\r\n-12 x\r\n") << QList{0, 0, 0};
    QTest::newRow("a megabyte") << "250 " + QByteArray(1'000'000, 'x') + "\r\n221 b\r\n" << QList{250, 221};
}

void testMailMessage::replies()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, codes);
    for (const qsizetype step : {bytes.size(), qsizetype(1)}) {
        SmtpReplies replies;
        for (qsizetype at = 0; at < bytes.size(); at += step)
            replies.add(bytes.mid(at, step));
        QList<int> taken;
        while (const auto reply = replies.take())
            taken << reply->code;
        QCOMPARE(taken, codes);
    }
}

QTEST_APPLESS_MAIN(testMailMessage)
#include "testMailMessage.moc"
