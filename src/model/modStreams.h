// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/clsNoteProps.h"

#include <QByteArray>

class QDateTime;
struct clsprogramoptions;

/// What can be wrong with the bytes of a record.
enum class StreamError
{
    Truncated,
    NegativeLength,
    OddLength,
    StartOutOfRange
};
QString toText(StreamError error);

/// A record that was read.
struct DecodedNote
{
    clsNoteProps note;
    qsizetype length = 0; ///< Bytes that the record takes.
};

/// Notes as bytes and options as text. Numbers are little-endian, positions are 0-based byte indices. Readers check
/// every length against the bytes that are there before they allocate.
namespace modStreams
{

// Field writers put the value at the position, growing the buffer, and advance the position.
void WriteBoolean(bool value, qsizetype &position, QByteArray &buffer);
void WriteInteger(qint16 value, qsizetype &position, QByteArray &buffer);
void WriteLong(qint32 value, qsizetype &position, QByteArray &buffer);
void WriteSingle(float value, qsizetype &position, QByteArray &buffer);
void WriteString(QStringView value, qsizetype &position, QByteArray &buffer);

// Field readers advance the position only when they succeed. Any Boolean but 0 is true.
Outcome<bool, StreamError> ReadBoolean(qsizetype &position, QByteArrayView buffer);
Outcome<qint16, StreamError> ReadInteger(qsizetype &position, QByteArrayView buffer);
Outcome<qint32, StreamError> ReadLong(qsizetype &position, QByteArrayView buffer);
Outcome<float, StreamError> ReadSingle(qsizetype &position, QByteArrayView buffer);
Outcome<QString, StreamError> ReadString(qsizetype &position, QByteArrayView buffer);
/// As ReadString, without building the text: its bytes.
Outcome<QByteArrayView, StreamError> takeString(qsizetype &position, QByteArrayView buffer);

/// The file form of a note.
QByteArray EncodeNoteRecord(const clsNoteProps &note);
/// What the record does not carry is the template's.
Outcome<DecodedNote, StreamError> DecodeNoteRecord(QByteArrayView image, qsizetype start,
                                                   const clsNoteProps &noteTemplate);
/// The length of the record at `start`, found without building its texts.
Outcome<qsizetype, StreamError> measureNoteRecord(QByteArrayView image, qsizetype start);

/// Appends the wire form of a note.
void EncodeSendRecord(const clsNoteProps &note, QByteArray &buffer);
/// The record is completed: the sender behind the date, the alarm armed for the moment of arrival.
Outcome<DecodedNote, StreamError> DecodeReceivedRecord(QByteArrayView buffer, qsizetype position,
                                                       QStringView senderIdentity, QStringView senderName,
                                                       const QDateTime &arrival, const clsNoteProps &noteTemplate);

/// Sets one option from its key and its text. False: the key is unknown or the value refused, nothing has changed.
bool ApplyOption(clsprogramoptions &options, QStringView key, QStringView value);
/// Lines that cannot be understood are passed over.
void ParseOptionsText(const QByteArray &bytes, clsprogramoptions &options);
QByteArray BuildOptionsText(const clsprogramoptions &options);

} // namespace modStreams
