// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsprogramoptions.h"

#include "model/textValues.h"

bool clsprogramoptions::setTitleBarOn(QStringView text)
{
    const std::optional<bool> value = textValues::toBoolean(text);
    TitleBarOn = value.value_or(TitleBarOn);
    return value.has_value();
}

QString clsprogramoptions::TitleBarOnText() const
{
    return textValues::fromBoolean(TitleBarOn);
}

bool clsprogramoptions::setListeningPort(QStringView text)
{
    const std::optional<qint32> value = textValues::toLong(text);
    ListeningPort = value.value_or(ListeningPort);
    return value.has_value();
}

QString clsprogramoptions::ListeningPortText() const
{
    return textValues::fromLong(ListeningPort);
}
