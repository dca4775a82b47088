// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/networkSettingsFile.h"

#include "model/textFile.h"
#include "model/textValues.h"
#include "model/wholeFile.h"

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace
{

using Senders = clsNetworkSettings::Senders;
using Security = clsNetworkSettings::Security;

constexpr qsizetype MostBlocked = 1000;

struct SettingKey
{
    QStringView key;
    QString (*toText)(const clsNetworkSettings &);
    void (*fromText)(clsNetworkSettings &, QStringView);
};

template <class Value> struct Word
{
    QStringView word;
    Value value;
};
constexpr std::array SenderWords = {Word<Senders>{u"Everybody", Senders::Everybody},
                                    Word<Senders>{u"Send Book", Senders::SendBook},
                                    Word<Senders>{u"Nobody", Senders::Nobody}};
constexpr std::array SecurityWords = {Word<Security>{u"None", Security::None},
                                      Word<Security>{u"STARTTLS", Security::StartTls},
                                      Word<Security>{u"TLS", Security::Tls}};

template <class Words, class Value> QString wordOf(const Words &words, Value value)
{
    const auto found = std::find_if(words.begin(), words.end(), [&](const auto &word) { return word.value == value; });
    return found->word.toString();
}

template <class Words, class Value> void takeWord(const Words &words, QStringView text, Value &target)
{
    for (const auto &word : words)
        if (text.compare(word.word, Qt::CaseInsensitive) == 0)
            target = word.value;
}

template <auto Field> SettingKey switchRow(QStringView key)
{
    return {key, [](const clsNetworkSettings &settings) { return textValues::fromBoolean(settings.*Field); },
            [](clsNetworkSettings &settings, QStringView text) {
                settings.*Field = textValues::toBoolean(text).value_or(settings.*Field);
            }};
}

QStringList senders(QStringView text)
{
    QStringList list;
    for (const QStringView item : text.split(u';', Qt::SkipEmptyParts))
        if (list.size() < MostBlocked && !item.trimmed().isEmpty())
            list << item.trimmed().toString();
    return list;
}

void takePort(clsNetworkSettings &settings, QStringView text)
{
    const qint32 port = textValues::toLong(text).value_or(-1);
    if (port >= 0 && port <= std::numeric_limits<quint16>::max())
        settings.MailPort = port;
}

/// In the order of the file.
const auto &settingKeys()
{
    using Settings = clsNetworkSettings;
    static const std::array keys = {
        SettingKey{u"Accept Notes From", [](const Settings &s) { return wordOf(SenderWords, s.AcceptFrom); },
                   [](Settings &s, QStringView text) { takeWord(SenderWords, text, s.AcceptFrom); }},
        switchRow<&Settings::FarSendersOn>(u"Accept Notes From Afar"),
        SettingKey{u"Blocked Senders",
                   [](const Settings &s) { return textFile::flattened(s.BlockedSenders.join(u';')); },
                   [](Settings &s, QStringView text) { s.BlockedSenders = senders(text); }},
        switchRow<&Settings::AnnounceOn>(u"Announce This Computer"),
        SettingKey{u"Mail Security", [](const Settings &s) { return wordOf(SecurityWords, s.MailSecurity); },
                   [](Settings &s, QStringView text) { takeWord(SecurityWords, text, s.MailSecurity); }},
        SettingKey{u"Mail Port", [](const Settings &s) { return textValues::fromLong(s.MailPort); }, takePort},
        SettingKey{u"Mail User", [](const Settings &s) { return textFile::flattened(s.MailUser); },
                   [](Settings &s, QStringView text) { s.MailUser = text.toString(); }},
    };
    return keys;
}

void applyLine(clsNetworkSettings &settings, QStringView line)
{
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 1)
        return;
    const QStringView key = textValues::trimmed(line.first(equals));
    for (const SettingKey &setting : settingKeys())
        if (setting.key == key)
            setting.fromText(settings, textValues::trimmed(line.sliced(equals + 1)));
}

} // namespace

QString networkSettingsFile::pathIn(const QString &dataFolder)
{
    return dataFolder + u"/network.set"_s;
}

clsNetworkSettings networkSettingsFile::load(const QString &path)
{
    const auto file = wholeFile::read(path, textFile::MaximumBytes);
    return file ? parse(file.value()) : clsNetworkSettings();
}

Outcome<Done, QString> networkSettingsFile::save(const QString &path, const clsNetworkSettings &settings)
{
    return wholeFile::replaceReadable(path, build(settings), textFile::MaximumBytes);
}

clsNetworkSettings networkSettingsFile::parse(const QByteArray &bytes)
{
    clsNetworkSettings settings;
    const QString text = textFile::decode(bytes);
    for (const QStringView line : textFile::lines(text))
        applyLine(settings, line);
    return settings;
}

QByteArray networkSettingsFile::build(const clsNetworkSettings &settings)
{
    QString text;
    for (const SettingKey &setting : settingKeys())
        text += setting.key.toString() + u" = "_s + setting.toText(settings) + u"\r\n"_s;
    return textFile::encode(text);
}
