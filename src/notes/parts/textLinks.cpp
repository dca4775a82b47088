// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/textLinks.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{

constexpr qsizetype LongestAddress = 2048;

/// What usually ends the sentence and not the address; a closing bracket belongs to it when it opens there too.
QString trimmed(QString address)
{
    const QString enders = QStringLiteral(".,;:!?'*_");
    while (!address.isEmpty()) {
        const QChar last = address.back();
        const bool closes = (last == u')' && address.count(u')') > address.count(u'(')) ||
                            (last == u']' && address.count(u']') > address.count(u'['));
        if (!closes && !enders.contains(last))
            break;
        address.chop(1);
    }
    return address;
}

bool isOpenable(const QUrl &url)
{
    if (url.scheme() == QLatin1String("mailto"))
        return url.path().contains(u'@');
    return url.isValid() && !url.host().isEmpty();
}

} // namespace

std::optional<QUrl> textLinks::addressAt(QStringView line, qsizetype at)
{
    static const QRegularExpression address(QStringLiteral(R"((?<!\w)(?:https?://|mailto:)[^\s<>"]+)"),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption);
    const qsizetype from = qMax(qsizetype(0), at - LongestAddress);
    const QString part = line.mid(from, 2 * LongestAddress).toString();
    for (auto matches = address.globalMatch(part); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype begin = from + match.capturedStart();
        const QString found = trimmed(match.captured());
        if (at < begin || at >= begin + found.size() || found.size() > LongestAddress)
            continue;
        const QUrl url(found, QUrl::TolerantMode);
        return isOpenable(url) ? std::optional(url) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<qsizetype> textLinks::markOf(QStringView line)
{
    qsizetype at = 0;
    while (at < line.size() && (line[at] == u' ' || line[at] == u'\t'))
        ++at;
    const QStringView box = line.mid(at, 3);
    const bool isBox =
        box.size() == 3 && box[0] == u'[' && box[2] == u']' && (box[1] == u' ' || box[1] == u'x' || box[1] == u'X');
    return isBox ? std::optional(at + 1) : std::nullopt;
}

std::optional<qsizetype> textLinks::markAt(QStringView line, qsizetype at)
{
    const auto mark = markOf(line);
    return mark && at >= *mark - 1 && at <= *mark + 1 ? mark : std::nullopt;
}

QChar textLinks::toggled(QChar mark)
{
    return mark == u' ' ? u'x' : u' ';
}

QString textLinks::told(const QUrl &address)
{
    // As it is sent: letters that only look like others are told apart.
    return QCoreApplication::translate("textLinks", "%1\nCtrl+click opens it.")
        .arg(address.toString(QUrl::FullyEncoded));
}
