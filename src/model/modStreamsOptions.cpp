// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsprogramoptions.h"
#include "model/logs.h"
#include "model/modStreams.h"
#include "model/textFile.h"
#include "model/textValues.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{

/// One row of the options file.
struct OptionKey
{
    QStringView key; ///< Compared exactly, case included.
    QString (*toText)(const clsprogramoptions &);
    bool (*fromText)(clsprogramoptions &, QStringView); ///< False: value refused, option unchanged.
};

QString asText(const QString &value)
{
    return textFile::flattened(value);
}
QString asText(bool value)
{
    return textValues::fromBoolean(value);
}
QString asText(qint32 value)
{
    return textValues::fromLong(value);
}
QString asText(float value)
{
    return textValues::fromSingle(value);
}

template <class Value> bool assign(Value &target, const std::optional<Value> &value)
{
    target = value.value_or(target);
    return value.has_value();
}

bool take(QString &target, QStringView text)
{
    return assign(target, std::optional(text.toString()));
}
bool take(bool &target, QStringView text)
{
    return assign(target, textValues::toBoolean(text));
}
bool take(qint32 &target, QStringView text)
{
    return assign(target, textValues::toLong(text));
}
bool take(float &target, QStringView text)
{
    return assign(target, textValues::toSingle(text));
}

template <auto Field> constexpr OptionKey row(QStringView key)
{
    return {key, [](const clsprogramoptions &options) { return asText(options.*Field); },
            [](clsprogramoptions &options, QStringView text) { return take(options.*Field, text); }};
}

/// In the order of the file.
constexpr std::array OptionKeys = {
    row<&clsprogramoptions::NameName>(u"Name"),
    row<&clsprogramoptions::NameTitle>(u"Title"),
    row<&clsprogramoptions::Org>(u"Organization"),
    row<&clsprogramoptions::OnTopOn>(u"Always On Top"),
    row<&clsprogramoptions::ToolBarOn>(u"Toolbar"),
    row<&clsprogramoptions::TitleBarOn>(u"Prompt For New Title"),
    row<&clsprogramoptions::FrmHeight>(u"Height"),
    row<&clsprogramoptions::FrmWidth>(u"Width"),
    row<&clsprogramoptions::FontName>(u"Font Name"),
    row<&clsprogramoptions::FontSize>(u"Font Size"),
    row<&clsprogramoptions::FontBoldOn>(u"Font Bold"),
    row<&clsprogramoptions::FontItalicOn>(u"Font Italic"),
    row<&clsprogramoptions::ForeColor>(u"Text Color"),
    row<&clsprogramoptions::BackColor>(u"Background Color"),
    row<&clsprogramoptions::BackPicOn>(u"Background Picture"),
    row<&clsprogramoptions::PicFile>(u"Background Picture File"),
    row<&clsprogramoptions::SoundFileOn>(u"Play Sound"),
    row<&clsprogramoptions::SoundFile>(u"Play Sound File"),
    row<&clsprogramoptions::FlashOn>(u"Flashing Window"),
    row<&clsprogramoptions::PwdOpenCloseOn>(u"Open/Close"),
    row<&clsprogramoptions::PwdReadonlyOn>(u"Read-Only"),
    row<&clsprogramoptions::EmailAddress>(u"E-mail Address"),
    row<&clsprogramoptions::SMTPServer>(u"SMTP Server"),
    row<&clsprogramoptions::AddressBook>(u"Address Book"),
    row<&clsprogramoptions::ListeningPort>(u"Listening Port"),
    row<&clsprogramoptions::SendBook>(u"Send Book"),
};

void applyLine(clsprogramoptions &options, QStringView line)
{
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 1)
        return;
    modStreams::ApplyOption(options, textValues::trimmed(line.first(equals)),
                            textValues::trimmed(line.sliced(equals + 1)));
}

} // namespace

bool modStreams::ApplyOption(clsprogramoptions &options, QStringView key, QStringView value)
{
    const auto found = std::find_if(OptionKeys.begin(), OptionKeys.end(),
                                    [key](const OptionKey &option) { return option.key == key; });
    const bool isTaken = found != OptionKeys.end() && found->fromText(options, value);
    if (!isTaken && found != OptionKeys.end())
        qCWarning(logs::files) << "Option refused:" << found->key;
    return isTaken;
}

void modStreams::ParseOptionsText(const QByteArray &bytes, clsprogramoptions &options)
{
    const QString text = textFile::decode(bytes);
    for (const QStringView line : textFile::lines(text))
        applyLine(options, line);
}

QByteArray modStreams::BuildOptionsText(const clsprogramoptions &options)
{
    QString text;
    for (const OptionKey &option : OptionKeys)
        text += option.key.toString() + u" = "_s + option.toText(options) + u"\r\n"_s;
    return textFile::encode(text);
}
