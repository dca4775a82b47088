// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "transfer/plainTexts.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringConverter>

#include <algorithm>

namespace
{

constexpr qsizetype LongestEntity = 10;

qint32 colourOf(int red, int green, int blue)
{
    return red | (green << 8) | (blue << 16);
}

/// Of what stands between "&" and ";"; empty for one that is not known.
QString entity(const QString &name)
{
    static const QHash<QString, QString> names{
        {QStringLiteral("amp"), QStringLiteral("&")},  {QStringLiteral("lt"), QStringLiteral("<")},
        {QStringLiteral("gt"), QStringLiteral(">")},   {QStringLiteral("quot"), QStringLiteral("\"")},
        {QStringLiteral("apos"), QStringLiteral("'")}, {QStringLiteral("nbsp"), QString(QChar::Nbsp)},
    };
    if (!name.startsWith(u'#'))
        return names.value(name);
    const bool isHex = name.mid(1).startsWith(u'x', Qt::CaseInsensitive);
    bool isNumber = false;
    const uint code = isHex ? name.mid(2).toUInt(&isNumber, 16) : name.mid(1).toUInt(&isNumber, 10);
    if (!isNumber || code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return {};
    const char32_t sign = code;
    return QString::fromUcs4(&sign, 1);
}

QString withEntities(const QString &text)
{
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QStringView next = QStringView(text).mid(at, LongestEntity + 1);
        const qsizetype length = next.startsWith(u'&') ? next.indexOf(u';') : -1;
        const QString sign = length > 0 ? entity(next.mid(1, length - 1).toString()) : QString();
        result += sign.isEmpty() ? QString(text.at(at)) : sign;
        at += sign.isEmpty() ? 0 : length;
    }
    return result;
}

/// What a page does not show, from its first mark to the end of its last.
struct Unseen
{
    QLatin1String begin;
    QLatin1String end;
    bool isEndless = false; ///< There is no end any more.
};

/// Every character is looked at a few times at most, whatever the page is.
QString withoutUnseen(const QString &html)
{
    Unseen kinds[] = {{QLatin1String("<!--"), QLatin1String("-->")},
                      {QLatin1String("<head"), QLatin1String("</head")},
                      {QLatin1String("<style"), QLatin1String("</style")},
                      {QLatin1String("<script"), QLatin1String("</script")}};
    QString seen;
    qsizetype kept = 0;
    for (qsizetype at = html.indexOf(u'<'); at >= 0; at = html.indexOf(u'<', at)) {
        const QStringView rest = QStringView(html).mid(at++);
        const auto kind = std::find_if(std::begin(kinds), std::end(kinds), [rest](const Unseen &unseen) {
            const QStringView behind = rest.mid(qMin(unseen.begin.size(), rest.size()), 1);
            const bool isLonger = unseen.begin.at(1) != '!' && !behind.isEmpty() && behind.front().isLetterOrNumber();
            return !isLonger && rest.startsWith(unseen.begin, Qt::CaseInsensitive);
        });
        if (kind == std::end(kinds) || kind->isEndless)
            continue;
        qsizetype end = rest.indexOf(kind->end, kind->begin.size(), Qt::CaseInsensitive);
        end = end < 0 ? end : rest.indexOf(u'>', end);
        kind->isEndless = end < 0;
        if (kind->isEndless)
            continue;
        seen += QStringView(html).mid(kept, at - 1 - kept);
        kept = at = at + end;
    }
    return seen + html.mid(kept);
}

} // namespace

QString plainTexts::withNoteLines(QString text)
{
    text.remove(QChar(u'\0'));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    text.replace(QChar(QChar::LineSeparator), QChar(u'\n'));
    text.replace(u'\n', QLatin1String("\r\n"));
    return text;
}

QString plainTexts::decoded(const QByteArray &bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    return withNoteLines(decoder.hasError() && !marked ? QString::fromLatin1(bytes) : text);
}

QString plainTexts::fromHtml(const QString &html)
{
    static const QRegularExpression breaks(QStringLiteral("(<br\\s*/?>\\s*)?</(p|div|li|tr|h[1-6])\\s*>|<br\\s*/?>"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression marks(QStringLiteral("<[^>]*>"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QString text = withoutUnseen(html);
    text.replace(blanks, QStringLiteral(" "));
    text.replace(breaks, QStringLiteral("\n"));
    text.remove(marks);
    QStringList lines = withEntities(text).split(u'\n');
    for (QString &line : lines)
        line = line.trimmed();
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines.join(QLatin1String("\r\n"));
}

std::optional<qint32> plainTexts::colour(const QString &text)
{
    static const QRegularExpression hex(QStringLiteral("^#([0-9a-f]{2})([0-9a-f]{2})([0-9a-f]{2})$"),
                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression wide(QStringLiteral("^#([0-9a-f]{4})([0-9a-f]{4})([0-9a-f]{4})$"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression parts(QStringLiteral("^rgba?\\((\\d{1,3}),\\s*(\\d{1,3}),\\s*(\\d{1,3})[,)]"));
    const QString wanted = text.trimmed();
    if (const auto match = hex.match(wanted); match.hasMatch())
        return colourOf(match.captured(1).toInt(nullptr, 16), match.captured(2).toInt(nullptr, 16),
                        match.captured(3).toInt(nullptr, 16));
    if (const auto match = wide.match(wanted); match.hasMatch())
        return colourOf(match.captured(1).toInt(nullptr, 16) >> 8, match.captured(2).toInt(nullptr, 16) >> 8,
                        match.captured(3).toInt(nullptr, 16) >> 8);
    if (const auto match = parts.match(wanted); match.hasMatch())
        return colourOf(qMin(match.captured(1).toInt(), 255), qMin(match.captured(2).toInt(), 255),
                        qMin(match.captured(3).toInt(), 255));
    return std::nullopt;
}
