// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/MailSender.h"

#include "net/mailText.h"

#include <QSslSocket>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype MostSaid = 40;
constexpr char LineEnd[] = "\r\n";

namespace code
{
constexpr int Ready = 220;
constexpr int Closing = 221;
constexpr int LoggedIn = 235;
constexpr int Ok = 250;
constexpr int OkToForward = 251;
constexpr int GoOnLoggingIn = 334;
constexpr int GoOnSending = 354;
} // namespace code

bool isTransient(int code)
{
    return code >= 400 && code < 500;
}

bool isPermanent(int code)
{
    return code >= 500 && code < 600;
}

QByteArray line(QByteArrayView command)
{
    return command.toByteArray() + LineEnd;
}

/// The parameters of what a server says it can; none when it cannot.
std::optional<QStringList> capability(const SmtpReply &reply, QStringView keyword)
{
    for (const QString &said : reply.lines) {
        QStringList words = said.mid(4).toUpper().replace(u'=', u' ').split(u' ', Qt::SkipEmptyParts);
        if (!words.isEmpty() && words.takeFirst() == keyword)
            return words;
    }
    return std::nullopt;
}

} // namespace

MailSender::MailSender(ExchangeTimes times, QObject *parent)
    : Exchange(times, {tr("E-mail canceled"), tr("E-mail canceled"), tr("Message sent.")}, parent)
{}

void MailSender::start(const MailServer &server, const MailMessage &message)
{
    if (isRunning())
        return;
    m_server = server;
    m_message = message;
    m_replies.clear();
    m_said.clear();
    m_steps.clear();
    m_taken = 0;
    m_contentFrom.reset();
    m_isAccepted = false;
    planGreeting();
    std::unique_ptr<QTcpSocket> socket;
    if (isSecure()) {
        auto secured = std::make_unique<QSslSocket>();
        if (server.tls)
            secured->setSslConfiguration(*server.tls);
        secured->setPeerVerifyMode(QSslSocket::VerifyPeer);
        socket = std::move(secured);
    } else {
        socket = std::make_unique<QTcpSocket>();
    }
    open(std::move(socket), {server.host, server.usedPort()}, message.length(), tr("Connecting ..."));
}

void MailSender::connectSocket(QTcpSocket &socket, const Place &place)
{
    if (m_server.security == clsNetworkSettings::Security::Tls)
        static_cast<QSslSocket &>(socket).connectToHostEncrypted(place.host, place.port);
    else
        Exchange::connectSocket(socket, place);
}

// The steps of the talk.

void MailSender::planGreeting()
{
    m_steps.append({{}, {}, code::Ready, [this](const SmtpReply &) {
                        planHello();
                        if (!isSecure())
                            planMail();
                    }});
}

/// What the server answers settles how it goes on where the line is to be secured.
void MailSender::planHello()
{
    if (!isSecure()) {
        m_steps.append({line("HELO Quillets"), tr("Connected ..."), code::Ok});
        return;
    }
    const auto goOn = [this](const SmtpReply &reply) {
        if (static_cast<QSslSocket *>(socket())->isEncrypted())
            planLogIn(reply);
        else
            planStartTls(reply);
    };
    const auto sayHelo = [this, goOn](const SmtpReply &reply) {
        if (isPermanent(reply.code))
            m_steps.prepend({line("HELO Quillets"), {}, code::Ok, goOn});
        return isPermanent(reply.code);
    };
    m_steps.append({line("EHLO Quillets"), tr("Connected ..."), code::Ok, goOn, sayHelo});
}

void MailSender::planStartTls(const SmtpReply &capabilities)
{
    if (!capability(capabilities, u"STARTTLS"))
        return failWith(tr("The server offers no encryption."));
    m_steps.append({line("STARTTLS"), {}, code::Ready, [this](const SmtpReply &) { encrypt(); }});
}

/// What came in the clear behind the reply may be anybody's: it must not be taken for the server's.
void MailSender::encrypt()
{
    if (!m_replies.isEmpty() || socket()->bytesAvailable() > 0)
        return failWith(tr("The server spoke before the line was encrypted."));
    auto *const secured = static_cast<QSslSocket *>(socket());
    connect(secured, &QSslSocket::encrypted, this, [this] {
        planHello();
        runStep();
    });
    startWait();
    secured->startClientEncryption();
}

void MailSender::planLogIn(const SmtpReply &capabilities)
{
    if (m_server.user.isEmpty())
        return planMail();
    const QByteArray user = m_server.user.toUtf8();
    const QByteArray password = m_server.password.toUtf8();
    const QStringList ways = capability(capabilities, u"AUTH").value_or(QStringList());
    if (ways.contains(u"PLAIN"_s)) {
        const QByteArray secret = '\0' + user + '\0' + password;
        m_steps.append({line("AUTH PLAIN " + secret.toBase64()), {}, code::LoggedIn});
    } else if (ways.contains(u"LOGIN"_s)) {
        m_steps.append({line("AUTH LOGIN"), {}, code::GoOnLoggingIn});
        m_steps.append({line(user.toBase64()), {}, code::GoOnLoggingIn});
        m_steps.append({line(password.toBase64()), {}, code::LoggedIn});
    } else {
        return failWith(tr("The server offers no log-in that this program knows."));
    }
    planMail();
}

void MailSender::planMail()
{
    m_steps.append({line(m_message.sender), tr("Sending from information ..."), code::Ok,
                    [this](const SmtpReply &) { setProgress(m_message.sender.size()); }});
    for (const QByteArray &recipient : std::as_const(m_message.recipientLines))
        m_steps.append({line(recipient), tr("Sending to information ..."), code::Ok});
    m_steps.append({line("data"), tr("Sending request to send info ..."), code::GoOnSending,
                    [this](const SmtpReply &) { planContent(); }});
}

void MailSender::planContent()
{
    m_contentFrom = m_taken;
    const QByteArray content = mailText::dotStuffed(m_message.header + LineEnd + m_message.body + LineEnd);
    m_steps.append({content + '.' + LineEnd, tr("Sending header and data ..."), code::Ok, [this](const SmtpReply &) {
                        m_isAccepted = true;
                        m_contentFrom.reset();
                        setProgress(m_message.length());
                    }});
    m_steps.append({line("quit"), tr("Disconnecting ..."), code::Closing});
}

// The talk itself.

void MailSender::runStep()
{
    const Step step = m_steps.first();
    stopWait();
    if (!step.label.isEmpty() && !tellStep(step.label))
        return;
    // What was said before a command is no reply to it.
    remember(m_replies.drain());
    write(step.sends);
}

void MailSender::arrived(const QByteArray &bytes)
{
    m_replies.add(bytes);
    advance();
}

void MailSender::advance()
{
    while (isRunning() && socket() && !m_steps.isEmpty()) {
        const std::optional<SmtpReply> reply = m_replies.take();
        if (!reply)
            return;
        remember(reply->lines);
        if (!isWaitedFor(*reply)) {
            refused(*reply);
            continue;
        }
        const Step step = m_steps.takeFirst();
        if (step.onReply)
            step.onReply(*reply);
        if (!socket())
            return;
        if (reply->code == code::Closing && m_isAccepted)
            return succeed();
        if (!m_steps.isEmpty())
            return runStep();
    }
}

/// Servers of today have more than one word for a recipient that they take.
bool MailSender::isWaitedFor(const SmtpReply &reply) const
{
    const int waitedFor = m_steps.first().code;
    return reply.code == waitedFor || (isSecure() && waitedFor == code::Ok && reply.code == code::OkToForward);
}

/// Without security nothing but the right code counts.
void MailSender::refused(const SmtpReply &reply)
{
    if (!isSecure() || !(isTransient(reply.code) || isPermanent(reply.code)))
        return;
    const Step step = m_steps.takeFirst();
    if (step.onRefusal && step.onRefusal(reply))
        return runStep();
    failWith(reply.lines.join(u'\n'));
}

/// The time for the reply begins when the server can have heard all.
void MailSender::allTaken()
{
    startWait();
}

/// Commands do not count; the content's doubled dots and its end are beyond the length that was told.
void MailSender::taken(qsizetype sum)
{
    m_taken = sum;
    if (m_contentFrom)
        setProgress(std::min(m_message.sender.size() + sum - *m_contentFrom, m_message.length()));
}

/// A server that has the mail may go without a farewell.
void MailSender::brokenOff(const QString &description)
{
    if (m_isAccepted)
        succeed();
    else
        Exchange::brokenOff(description);
}

void MailSender::remember(const QStringList &lines)
{
    m_said += lines;
    if (m_said.size() > MostSaid)
        m_said.remove(0, m_said.size() - MostSaid);
}

void MailSender::failWith(const QString &reason)
{
    fail(socketFailure(reason));
}

Notice MailSender::waitFailure() const
{
    return {.text = tr("No response from mail server"), .caption = tr("No Response"), .details = m_said.join(u'\n')};
}

Notice MailSender::overallFailure() const
{
    return {.text = tr("E-mail send timeout"), .caption = tr("Timeout"), .details = m_said.join(u'\n')};
}

Notice MailSender::socketFailure(const QString &description) const
{
    return {.text = tr("Error sending e-mail.\nServer response: %1").arg(description),
            .caption = tr("Error"),
            .details = m_said.join(u'\n')};
}
