// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"

#include <QtEndian>

#include <bit>

namespace
{

constexpr quint16 TrueBits = 0xFFFF;
constexpr qsizetype UnitLength = sizeof(char16_t);

void growTo(qsizetype end, QByteArray &buffer)
{
    if (buffer.size() < end)
        buffer.resize(end);
}

template <class Number> void writeNumber(Number value, qsizetype &position, QByteArray &buffer)
{
    growTo(position + qsizetype(sizeof(Number)), buffer);
    qToLittleEndian(value, buffer.data() + position);
    position += qsizetype(sizeof(Number));
}

bool isAvailable(qsizetype count, qsizetype position, QByteArrayView buffer)
{
    return position >= 0 && position <= buffer.size() && count <= buffer.size() - position;
}

template <class Number> Outcome<Number, StreamError> readNumber(qsizetype &position, QByteArrayView buffer)
{
    if (!isAvailable(qsizetype(sizeof(Number)), position, buffer))
        return Failure{StreamError::Truncated};
    const Number value = qFromLittleEndian<Number>(buffer.data() + position);
    position += qsizetype(sizeof(Number));
    return value;
}

} // namespace

void modStreams::WriteBoolean(bool value, qsizetype &position, QByteArray &buffer)
{
    writeNumber<quint16>(value ? TrueBits : 0, position, buffer);
}

void modStreams::WriteInteger(qint16 value, qsizetype &position, QByteArray &buffer)
{
    writeNumber(value, position, buffer);
}

void modStreams::WriteLong(qint32 value, qsizetype &position, QByteArray &buffer)
{
    writeNumber(value, position, buffer);
}

void modStreams::WriteSingle(float value, qsizetype &position, QByteArray &buffer)
{
    writeNumber(std::bit_cast<quint32>(value), position, buffer);
}

void modStreams::WriteString(QStringView value, qsizetype &position, QByteArray &buffer)
{
    WriteLong(static_cast<qint32>(value.size() * UnitLength), position, buffer);
    if (value.isEmpty())
        return;
    growTo(position + value.size() * UnitLength, buffer);
    qToLittleEndian<quint16>(value.utf16(), value.size(), buffer.data() + position);
    position += value.size() * UnitLength;
}

Outcome<bool, StreamError> modStreams::ReadBoolean(qsizetype &position, QByteArrayView buffer)
{
    const auto bits = readNumber<quint16>(position, buffer);
    if (!bits)
        return Failure{bits.error()};
    return bits.value() != 0;
}

Outcome<qint16, StreamError> modStreams::ReadInteger(qsizetype &position, QByteArrayView buffer)
{
    return readNumber<qint16>(position, buffer);
}

Outcome<qint32, StreamError> modStreams::ReadLong(qsizetype &position, QByteArrayView buffer)
{
    return readNumber<qint32>(position, buffer);
}

Outcome<float, StreamError> modStreams::ReadSingle(qsizetype &position, QByteArrayView buffer)
{
    const auto bits = readNumber<quint32>(position, buffer);
    if (!bits)
        return Failure{bits.error()};
    return std::bit_cast<float>(bits.value());
}

Outcome<QByteArrayView, StreamError> modStreams::takeString(qsizetype &position, QByteArrayView buffer)
{
    qsizetype from = position;
    const auto length = ReadLong(from, buffer);
    if (!length)
        return Failure{length.error()};
    if (length.value() < 0)
        return Failure{StreamError::NegativeLength};
    if (length.value() % UnitLength != 0)
        return Failure{StreamError::OddLength};
    if (!isAvailable(length.value(), from, buffer))
        return Failure{StreamError::Truncated};
    position = from + length.value();
    return buffer.sliced(from, length.value());
}

Outcome<QString, StreamError> modStreams::ReadString(qsizetype &position, QByteArrayView buffer)
{
    const auto bytes = takeString(position, buffer);
    if (!bytes)
        return Failure{bytes.error()};
    QString text(bytes.value().size() / UnitLength, Qt::Uninitialized);
    qFromLittleEndian<quint16>(bytes.value().data(), text.size(), text.data());
    return text;
}
