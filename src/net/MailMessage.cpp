// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/MailMessage.h"

#include "net/mailText.h"

#include <QLocale>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using mailText::cleaned;
using mailText::envelopeAddress;
using mailText::headerValue;

namespace
{

constexpr char WebAddress[] = "https://quillets.org";

QByteArray envelopeLine(QByteArrayView command, const QString &address, MailStyle style)
{
    const QByteArray bytes = envelopeAddress(address);
    return command.toByteArray() + (style == MailStyle::Strict ? '<' + bytes + '>' : ' ' + bytes);
}

QByteArray zone(const QDateTime &date, MailStyle style)
{
    if (style == MailStyle::Plain)
        return "-0600";
    const int minutes = date.offsetFromUtc() / 60;
    const int size = std::abs(minutes);
    return (minutes < 0 ? '-' : '+') + QByteArray::number(10000 + size / 60 * 100 + size % 60).sliced(1);
}

/// Names of days and months as RFC 5322 wants them, whatever the locale.
QByteArray dateText(const QDateTime &date, MailStyle style)
{
    return QLocale::c().toString(date, u"ddd, dd MMM yyyy hh:mm:ss "_s).toLatin1() + zone(date, style);
}

QByteArray mailbox(const QString &name, const QString &address)
{
    const QByteArray bytes = envelopeAddress(address);
    return cleaned(name).isEmpty() ? ' ' + bytes : ' ' + headerValue(name) + " <" + bytes + '>';
}

/// A new line of the header is begun only where the mail could not have the old one.
QByteArray recipientsHeader(const QList<MailRecipient> &recipients)
{
    QByteArray lines = "To:";
    qsizetype lineStart = 0;
    for (const MailRecipient &recipient : recipients) {
        const QByteArray entry = mailbox(recipient.name, recipient.address);
        if (&recipient != &recipients.first())
            lines += ',';
        if (lines.size() - lineStart + entry.size() >= mailText::LongestLine) {
            lines += "\r\n";
            lineStart = lines.size();
        }
        lines += entry;
    }
    return lines + "\r\n";
}

QByteArray header(const MailDraft &draft, MailStyle style)
{
    const QString sender = cleaned(draft.senderName).trimmed();
    QByteArray lines = "Date: " + dateText(draft.date, style) + "\r\n";
    lines += "X-Mailer:  Quillets " + headerValue(draft.versionText) + ' ' + WebAddress + "\r\n";
    lines += recipientsHeader(draft.recipients);
    lines += "From:" + mailbox(sender.isEmpty() ? u"Quillets User"_s : sender, draft.senderAddress) + "\r\n";
    lines += "Subject: " + headerValue(draft.subject) + "\r\n";
    if (!cleaned(draft.organization).isEmpty())
        lines += "Organization: " + headerValue(draft.organization) + "\r\n";
    return lines;
}

} // namespace

MailMessage composeMail(const MailDraft &draft, MailStyle style)
{
    MailMessage message{envelopeLine("mail from:", draft.senderAddress, style), {}, header(draft, style), {}};
    for (const MailRecipient &recipient : draft.recipients)
        message.recipientLines.append(envelopeLine("rcpt to:", recipient.address, style));
    const QString text = mailText::withMailLineEnds(draft.body) + u"\r\n"_s;
    if (mailText::isPlain(text)) {
        message.body = text.toLatin1();
    } else {
        message.header += "MIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
                          "Content-Transfer-Encoding: base64\r\n";
        message.body = mailText::encodedBody(text);
    }
    return message;
}
