// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "net/modSend.h"

#include "net/aliasResolution.h"
#include "net/visibleText.h"

#include <QCoreApplication>

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modSend)
};

struct Parts
{
    QString address;
    QString comment;
};

Parts partsOf(QStringView item)
{
    const qsizetype open = item.indexOf(u'(');
    if (open < 0)
        return {item.trimmed().toString(), {}};
    const qsizetype found = item.indexOf(u')', open);
    const qsizetype close = found < 0 ? item.size() : found;
    const QStringView behind = item.sliced(std::min(close + 1, item.size()));
    return {(item.first(open).toString() + behind.toString()).trimmed(),
            item.sliced(open + 1, close - open - 1).trimmed().toString()};
}

bool isUsual(qint32 port)
{
    return port == 0 || port == SendTarget::DefaultPort;
}

} // namespace

SendTarget modSend::parseTarget(QStringView item)
{
    const Parts parts = partsOf(item);
    const qsizetype at = parts.address.indexOf(u'@');
    if (at < 0)
        return {parts.address, parts.comment, 0};
    return {parts.address.first(at).trimmed(), parts.comment,
            QStringView(parts.address).sliced(at + 1).trimmed().toInt()};
}

QList<SendTarget> modSend::parseTargets(QStringView text)
{
    QList<SendTarget> targets;
    for (const QStringView item : text.split(u','))
        if (!item.trimmed().isEmpty())
            targets.append(parseTarget(item));
    return targets;
}

bool modSend::isHostAddress(QStringView host)
{
    return host.contains(u'.');
}

QList<SendBookEntry> modSend::entriesOf(const QList<BookLine> &lines)
{
    QList<SendBookEntry> entries;
    for (const BookLine &line : lines)
        for (const SendTarget &target : parseTargets(line.addresses))
            entries.append({line.alias, target.host, target.comment, target.port});
    return entries;
}

QString modSend::editorLine(const SendBookEntry &entry)
{
    const QString address = isUsual(entry.port) ? entry.host : u"%1@%2"_s.arg(entry.host).arg(entry.port);
    return entry.comment.isEmpty() ? address : u"%1 (%2)"_s.arg(address, entry.comment);
}

Outcome<QList<SendTarget>, Notice> modSend::resolveTargets(QStringView text, const QList<SendBookEntry> &book)
{
    const auto target = [](const SendBookEntry &entry) { return SendTarget{entry.host, entry.comment, entry.port}; };
    const auto resolved = aliasResolution::resolve(
        parseTargets(text), &SendTarget::host, book, [](const QString &host) { return isHostAddress(host); }, target);
    if (resolved)
        return *resolved;
    return Failure{Notice{Texts::tr("There has been an error retreiving your host address(es).\nPlease be sure your "
                                    "alias (nickname) definitions are correct. "),
                          Texts::tr("Host Address Resolution Error")}};
}

QString modSend::nearbyTarget(const QString &name, const QString &host, quint16 port)
{
    static const QRegularExpression sound(u"^[A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+$"_s);
    constexpr qsizetype LongestHost = 253;
    constexpr qsizetype LongestName = 63;
    if (host.size() > LongestHost || !sound.match(host).hasMatch() || port == 0)
        return {};
    QString comment = visibleText::line(name).left(LongestName);
    comment.removeIf([](QChar c) { return c == u',' || c == u'(' || c == u')'; });
    return editorLine({{}, host, comment.trimmed(), port});
}

Notice modSend::noTarget()
{
    return {Texts::tr("Please enter a remote host address"), Texts::tr("No Remote Host Specified")};
}
