// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/modStreams.h"

#include "model/modCopyObject.h"
#include "model/recordFields.h"
#include "model/textValues.h"

#include <QCoreApplication>
#include <QDateTime>

#include <optional>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype UnitLength = sizeof(char16_t);
/// Room for the fixed fields and the lengths of all texts of either form.
constexpr qsizetype BytesBesideTexts = 102;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(modStreams)
};

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
        return step(modStreams::takeString, position, buffer, ignore);
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
