// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Values as text and back, with "." as the decimal point whatever the locale.
namespace textValues
{

/// Only blanks go, no other white space.
QStringView trimmed(QStringView text);

/// "True" or "False" in any letter case, or a number, of which 0 is false.
std::optional<bool> toBoolean(QStringView text);
/// Decimals are rounded, half to even.
std::optional<qint32> toLong(QStringView text);
std::optional<float> toSingle(QStringView text);

QString fromBoolean(bool value);
QString fromLong(qint32 value);
/// The shortest text that reads back as exactly this number.
QString fromSingle(float value);

} // namespace textValues
