// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/keySettingsFile.h"

#include "model/textFile.h"
#include "model/textValues.h"
#include "model/wholeFile.h"

using namespace Qt::StringLiterals;

namespace
{

struct Row
{
    QStringView key;
    QString clsKeySettings::*field;
};
constexpr Row Rows[] = {{u"New Note", &clsKeySettings::NewNote}, {u"Show Or Hide All", &clsKeySettings::ShowOrHideAll}};

} // namespace

QString keySettingsFile::pathIn(const QString &dataFolder)
{
    return dataFolder + u"/keys.set"_s;
}

clsKeySettings keySettingsFile::load(const QString &path)
{
    clsKeySettings settings;
    const auto file = wholeFile::read(path, textFile::MaximumBytes);
    const QString text = file ? textFile::decode(file.value()) : QString();
    for (const QStringView line : textFile::lines(text)) {
        const qsizetype equals = line.indexOf(u'=');
        for (const Row &row : Rows)
            if (equals > 0 && textValues::trimmed(line.first(equals)) == row.key)
                settings.*row.field = textValues::trimmed(line.sliced(equals + 1)).toString();
    }
    return settings;
}

Outcome<Done, QString> keySettingsFile::save(const QString &path, const clsKeySettings &settings)
{
    QString text;
    for (const Row &row : Rows)
        text += row.key.toString() + u" = "_s + textFile::flattened(settings.*row.field) + u"\r\n"_s;
    return wholeFile::replaceReadable(path, textFile::encode(text), textFile::MaximumBytes);
}
