// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"

#include "model/modCopyObject.h"
#include "model/recordFields.h"
#include "model/textValues.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QtEndian>

#include <bit>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr quint16 TrueBits = 0xFFFF;
constexpr qsizetype UnitLength = sizeof(char16_t);
/// Room for the fixed fields and the lengths of all texts of either form.
constexpr qsizetype BytesBesideTexts = 102;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modStreams)
};

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

/// The bytes of a text, its length checked in every way.
Outcome<QByteArrayView, StreamError> takeText(qsizetype &position, QByteArrayView buffer)
{
    qsizetype from = position;
    const auto length = modStreams::ReadLong(from, buffer);
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

template <class Value> constexpr auto writer = nullptr;
template <> constexpr auto writer<bool> = modStreams::WriteBoolean;
template <> constexpr auto writer<qint16> = modStreams::WriteInteger;
template <> constexpr auto writer<qint32> = modStreams::WriteLong;
template <> constexpr auto writer<float> = modStreams::WriteSingle;
template <> constexpr auto writer<QString> = modStreams::WriteString;

template <class Value> constexpr auto reader = nullptr;
template <> constexpr auto reader<bool> = modStreams::ReadBoolean;
template <> constexpr auto reader<qint16> = modStreams::ReadInteger;
template <> constexpr auto reader<qint32> = modStreams::ReadLong;
template <> constexpr auto reader<float> = modStreams::ReadSingle;
template <> constexpr auto reader<QString> = modStreams::ReadString;

qsizetype textLength(const QString &text)
{
    return text.size() * UnitLength;
}
template <class Number> qsizetype textLength(Number)
{
    return 0;
}

template <class... Types>
void writeFields(const std::tuple<Types clsNoteProps::*...> &form, const clsNoteProps &note, QByteArray &buffer)
{
    qsizetype position = buffer.size();
    const auto write = [&](auto... field) {
        buffer.reserve(position + BytesBesideTexts + (textLength(note.*field) + ...));
        (writer<Types>(note.*field, position, buffer), ...);
    };
    std::apply(write, form);
}

/// Hands the read value to `use`; the flaw, if there is one.
template <class Read, class Use>
std::optional<StreamError> step(Read read, qsizetype &position, QByteArrayView buffer, Use use)
{
    auto value = read(position, buffer);
    if (!value)
        return value.error();
    use(std::move(value).value());
    return std::nullopt;
}

template <class... Types>
std::optional<StreamError> readFields(const std::tuple<Types clsNoteProps::*...> &form, clsNoteProps &note,
                                      qsizetype &position, QByteArrayView buffer)
{
    std::optional<StreamError> flaw;
    const auto readOne = [&]<class Value>(Value &target) {
        flaw = step(reader<Value>, position, buffer, [&](Value &&value) { target = std::move(value); });
        return !flaw;
    };
    std::apply([&](auto... field) { static_cast<void>((readOne(note.*field) && ...)); }, form);
    return flaw;
}

template <class Value> std::optional<StreamError> skipField(qsizetype &position, QByteArrayView buffer)
{
    const auto ignore = [](const auto &) {};
    if constexpr (std::is_same_v<Value, QString>)
        return step(takeText, position, buffer, ignore);
    else
        return step(reader<Value>, position, buffer, ignore);
}

template <class... Types>
std::optional<StreamError> skipFields(const std::tuple<Types clsNoteProps::*...> &, qsizetype &position,
                                      QByteArrayView buffer)
{
    std::optional<StreamError> flaw;
    static_cast<void>((!(flaw = skipField<Types>(position, buffer)) && ...));
    return flaw;
}

bool isStart(qsizetype start, QByteArrayView buffer)
{
    return start >= 0 && start <= buffer.size();
}

template <class Form>
Outcome<DecodedNote, StreamError> decode(const Form &form, QByteArrayView buffer, qsizetype start,
                                         const clsNoteProps &noteTemplate)
{
    if (!isStart(start, buffer))
        return Failure{StreamError::StartOutOfRange};
    DecodedNote decoded;
    modCopyObject::CopyNote(noteTemplate, decoded.note);
    qsizetype position = start;
    if (const auto flaw = readFields(form, decoded.note, position, buffer))
        return Failure{*flaw};
    decoded.length = position - start;
    QByteArray again;
    writeFields(form, decoded.note, again);
    decoded.lossless = again == buffer.sliced(start, decoded.length);
    return decoded;
}

QString senderText(QStringView senderIdentity, QStringView senderName)
{
    const QStringView identity = textValues::trimmed(senderIdentity);
    const QStringView name = textValues::trimmed(senderName);
    if (name.isEmpty() || identity.isEmpty())
        return (name.isEmpty() ? identity : name).toString();
    return u"%1, %2"_s.arg(name, identity);
}

void armAlarm(clsNoteProps &note, const QDateTime &moment)
{
    const QDate date = moment.date();
    const QTime time = moment.time();
    note.AlarmDateDay = static_cast<qint16>(date.day());
    note.AlarmDateMonth = static_cast<qint16>(date.month());
    note.AlarmDateYear = static_cast<qint16>(date.year());
    note.AlarmTimeHour = static_cast<qint16>(time.hour());
    note.AlarmTimeMinute = static_cast<qint16>(time.minute());
    note.AlarmTimeSecond = static_cast<qint16>(time.second());
    note.AlarmOn = true;
}

} // namespace

QString toText(StreamError error)
{
    switch (error) {
    case StreamError::Truncated:
        return Texts::tr("The record ends too early.");
    case StreamError::NegativeLength:
        return Texts::tr("A text of the record has a negative length.");
    case StreamError::OddLength:
        return Texts::tr("A text of the record ends within a character.");
    case StreamError::StartOutOfRange:
        return Texts::tr("The record begins outside the file.");
    }
    Q_UNREACHABLE();
}

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

Outcome<QString, StreamError> modStreams::ReadString(qsizetype &position, QByteArrayView buffer)
{
    const auto bytes = takeText(position, buffer);
    if (!bytes)
        return Failure{bytes.error()};
    QString text(bytes.value().size() / UnitLength, Qt::Uninitialized);
    qFromLittleEndian<quint16>(bytes.value().data(), text.size(), text.data());
    return text;
}

QByteArray modStreams::EncodeNoteRecord(const clsNoteProps &note)
{
    QByteArray record;
    writeFields(recordFields::fileForm, note, record);
    return record;
}

Outcome<DecodedNote, StreamError> modStreams::DecodeNoteRecord(QByteArrayView image, qsizetype start,
                                                               const clsNoteProps &noteTemplate)
{
    return decode(recordFields::fileForm, image, start, noteTemplate);
}

Outcome<qsizetype, StreamError> modStreams::measureNoteRecord(QByteArrayView image, qsizetype start)
{
    if (!isStart(start, image))
        return Failure{StreamError::StartOutOfRange};
    qsizetype position = start;
    if (const auto flaw = skipFields(recordFields::fileForm, position, image))
        return Failure{*flaw};
    return position - start;
}

void modStreams::EncodeSendRecord(const clsNoteProps &note, QByteArray &buffer)
{
    writeFields(recordFields::wireForm, note, buffer);
}

Outcome<DecodedNote, StreamError> modStreams::DecodeReceivedRecord(QByteArrayView buffer, qsizetype position,
                                                                   QStringView senderIdentity, QStringView senderName,
                                                                   const QDateTime &arrival,
                                                                   const clsNoteProps &noteTemplate)
{
    auto received = decode(recordFields::wireForm, buffer, position, noteTemplate);
    if (!received)
        return received;
    DecodedNote decoded = std::move(received).value();
    const QString sender = senderText(senderIdentity, senderName);
    if (!sender.isEmpty())
        decoded.note.DateCreated += u" (%1)"_s.arg(sender);
    armAlarm(decoded.note, arrival);
    return decoded;
}
