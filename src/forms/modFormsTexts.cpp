// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modFormsTexts.h"

#include <algorithm>

namespace modForms
{
namespace
{

bool endsInOneOf(QStringView path, std::initializer_list<QStringView> endings)
{
    QStringView trimmed = path;
    while (trimmed.startsWith(u' '))
        trimmed = trimmed.sliced(1);
    while (trimmed.endsWith(u' '))
        trimmed.chop(1);
    return trimmed.size() >= 3 &&
           std::any_of(endings.begin(), endings.end(), [&](QStringView ending) { return trimmed.endsWith(ending); });
}

} // namespace

QString DoubleFirstAmpersand(const QString &text)
{
    const qsizetype first = text.indexOf(QLatin1Char('&'));
    return first < 0 ? text : QString(text).insert(first, QLatin1Char('&'));
}

QString shownCaption(const QString &caption)
{
    const qsizetype first = caption.indexOf(QLatin1String("&&"));
    return first < 0 ? caption : QString(caption).remove(first, 1);
}

bool IsPictureFile(QStringView path)
{
    return endsInOneOf(path, {u"dib", u"bmp", u"gif", u"jpg", u"wmf", u"emf", u"ico", u"cur"});
}

bool IsSoundFile(QStringView path)
{
    return endsInOneOf(path, {u"wav"});
}

QString FlattenText(const QString &text)
{
    const auto isEdge = [](QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; };
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && isEdge(text[begin]))
        ++begin;
    while (end > begin && (isEdge(text[end - 1]) || text[end - 1].isNull()))
        --end;
    QString flat = text.mid(begin, end - begin);
    flat.replace(QLatin1Char('\t'), QLatin1Char(' '));
    flat.replace(QLatin1Char('\r'), QLatin1String(", "));
    flat.remove(QLatin1Char('\n'));
    return flat;
}

} // namespace modForms
