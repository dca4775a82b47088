// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/modEmail.h"

#include "model/clsprogramoptions.h"
#include "net/aliasResolution.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modEmail)
};

/// What stands between the first opening sign and the next closing one, or the end; the text itself without them.
QString between(const QString &text, QChar open, QChar close)
{
    const qsizetype from = text.indexOf(open) + 1;
    if (from == 0)
        return text;
    const qsizetype to = text.indexOf(close, from);
    return text.sliced(from, (to < 0 ? text.size() : to) - from).trimmed();
}

QString withoutBrackets(QString word)
{
    word.remove(0, word.indexOf(u'<') + 1);
    const qsizetype close = word.indexOf(u'>');
    return close < 0 ? word : word.first(close);
}

} // namespace

MailRecipient modEmail::parseRecipient(QStringView item)
{
    QString text = item.trimmed().toString();
    const qsizetype at = text.indexOf(u'@');
    if (at < 0)
        return {text, {}};
    const qsizetype from = text.lastIndexOf(u' ', at) + 1;
    const qsizetype blank = text.indexOf(u' ', at);
    const qsizetype length = (blank < 0 ? text.size() : blank) - from;
    const QString address = withoutBrackets(text.sliced(from, length));
    const QString rest = text.remove(from, length).trimmed();
    return {address, between(between(rest, u'(', u')'), u'"', u'"')};
}

QList<MailRecipient> modEmail::parseRecipients(QStringView text)
{
    QList<MailRecipient> recipients;
    for (const QStringView item : text.split(u','))
        if (!item.trimmed().isEmpty())
            recipients.append(parseRecipient(item));
    return recipients;
}

bool modEmail::isEmailAddress(QStringView address)
{
    return address.contains(u'@');
}

QList<AddressBookEntry> modEmail::entriesOf(const QList<BookLine> &lines)
{
    QList<AddressBookEntry> entries;
    for (const BookLine &line : lines)
        for (const MailRecipient &recipient : parseRecipients(line.addresses))
            entries.append({line.alias, recipient.address, recipient.name});
    return entries;
}

QString modEmail::editorLine(const AddressBookEntry &entry)
{
    return entry.name.isEmpty() ? entry.address : u"%1 (%2)"_s.arg(entry.address, entry.name);
}

Outcome<QList<MailRecipient>, Notice> modEmail::resolveRecipients(QStringView text, const QList<AddressBookEntry> &book)
{
    const auto recipient = [](const AddressBookEntry &entry) { return MailRecipient{entry.address, entry.name}; };
    const auto resolved = aliasResolution::resolve(
        parseRecipients(text), &MailRecipient::address, book,
        [](const QString &address) { return isEmailAddress(address); }, recipient);
    if (resolved)
        return *resolved;
    return Failure{Notice{Texts::tr("There has been an error retreiving your e-mail address(es).\nPlease be sure your "
                                    "alias (nickname) definitions are correct. "),
                          Texts::tr("E-mail Address Resolution Error")}};
}

Notice modEmail::noRecipient()
{
    return {Texts::tr("Please enter a valid e-mail address"), Texts::tr("E-mail address error")};
}

std::optional<Notice> modEmail::missingOptions(const clsprogramoptions &options)
{
    const bool hasServer = !options.SMTPServer.trimmed().isEmpty();
    const bool hasAddress = !options.EmailAddress.trimmed().isEmpty();
    if (!hasServer && !hasAddress)
        return Notice{Texts::tr("You need to enter your e-mail address and\nmail server name under Options"),
                      Texts::tr("Need E-mail Address or Server Name")};
    if (!hasServer)
        return Notice{Texts::tr("You need to enter your smtp (mail) server address under Options"),
                      Texts::tr("No Server Name")};
    if (!hasAddress)
        return Notice{Texts::tr("You need to enter your e-mail address under Options"), Texts::tr("No E-mail Address")};
    return std::nullopt;
}
