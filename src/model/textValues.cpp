// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/textValues.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace
{

constexpr QChar Blank = u' ';

std::optional<double> toNumber(QStringView text)
{
    bool isNumber = false;
    const double number = textValues::trimmed(text).toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

template <class Target> bool isWithin(double number)
{
    return number >= double(std::numeric_limits<Target>::lowest()) &&
           number <= double(std::numeric_limits<Target>::max());
}

} // namespace

QStringView textValues::trimmed(QStringView text)
{
    while (text.startsWith(Blank))
        text = text.sliced(1);
    while (text.endsWith(Blank))
        text.chop(1);
    return text;
}

std::optional<bool> textValues::toBoolean(QStringView text)
{
    const QStringView word = trimmed(text);
    if (word.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    const std::optional<double> number = toNumber(word);
    return number ? std::optional(*number != 0.0) : std::nullopt;
}

std::optional<qint32> textValues::toLong(QStringView text)
{
    const std::optional<double> number = toNumber(text);
    if (!number)
        return std::nullopt;
    const double rounded = std::nearbyint(*number);
    return isWithin<qint32>(rounded) ? std::optional(static_cast<qint32>(rounded)) : std::nullopt;
}

std::optional<float> textValues::toSingle(QStringView text)
{
    const std::optional<double> number = toNumber(text);
    return number && isWithin<float>(*number) ? std::optional(static_cast<float>(*number)) : std::nullopt;
}

QString textValues::fromBoolean(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

QString textValues::fromLong(qint32 value)
{
    return QString::number(value);
}

QString textValues::fromSingle(float value)
{
    std::array<char, 32> text; // No Single takes more than 16 characters.
    // Plain numbers stay plain, as a person would type them.
    constexpr float LargestPlain = 1e7F;
    char *const end = text.data() + text.size();
    const std::to_chars_result written = std::abs(value) < LargestPlain && std::abs(value) >= 1
                                             ? std::to_chars(text.data(), end, value, std::chars_format::fixed)
                                             : std::to_chars(text.data(), end, value);
    return QString::fromLatin1(text.data(), written.ptr - text.data());
}
