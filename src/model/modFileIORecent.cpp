// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modFileIORecent.h"

#include "model/textFile.h"
#include "model/textValues.h"
#include "model/wholeFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

MiscLines modFileIO::ReadMiscFile(const ProgramPaths &paths)
{
    const auto file = wholeFile::read(paths.MiscFile, textFile::MaximumBytes);
    if (!file)
        return {};
    const QString text = textFile::decode(file.value());
    const QList<QStringView> lines = textFile::lines(text);
    if (lines.isEmpty())
        return {};
    const auto second = std::find_if(lines.begin() + 1, lines.end(), [](QStringView line) { return !line.isEmpty(); });
    return {lines.first().toString(), second == lines.end() ? QString() : second->toString()};
}

Outcome<Done, QString> modFileIO::SaveRecentList(const ProgramPaths &paths, RecentList which, const QStringList &items,
                                                 qsizetype count)
{
    const qsizetype kept = std::clamp<qsizetype>(count, 0, std::min(items.size(), MostRecent));
    MiscLines lines = ReadMiscFile(paths);
    (which == RecentList::Email ? lines.email : lines.send) = textFile::flattened(items.first(kept).join(u';'));
    const QByteArray text = textFile::encode(lines.email + u"\r\n"_s + lines.send + u"\r\n"_s);
    return wholeFile::replaceReadable(paths.MiscFile, text, textFile::MaximumBytes);
}

QStringList modFileIO::LoadRecentList(const ProgramPaths &paths, RecentList which)
{
    const MiscLines lines = ReadMiscFile(paths);
    const QString &line = which == RecentList::Email ? lines.email : lines.send;
    QStringList items;
    for (const QStringView item : QStringView(line).split(u';')) {
        const QStringView trimmed = textValues::trimmed(item);
        if (!trimmed.isEmpty() && items.size() < MostRecent)
            items.append(trimmed.toString());
    }
    return items;
}
