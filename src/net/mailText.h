// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Texts as mails carry them.
namespace mailText
{

/// The longest line that a mail may have, without its end (RFC 5322).
inline constexpr qsizetype LongestLine = 998;

/// Without line breaks and NULs: nothing in it can become a header or a command of its own.
QString cleaned(QString value);
/// An envelope address: cleaned, its domain in the form that servers understand. In angle brackets nothing may be that
/// would end them.
QByteArray envelopeAddress(const QString &address);
/// A value of a header: as it is where it is short ASCII, else as encoded words (RFC 2047) on lines of their own.
QByteArray headerValue(const QString &value);
/// Every kind of line end as CR LF, without NULs.
QString withMailLineEnds(const QString &text);
/// True for printable ASCII in lines that a mail may have.
bool isPlain(QStringView text);
/// Base64 in short lines, each with its end.
QByteArray encodedBody(const QString &text);
/// Dots at the beginnings of lines doubled (RFC 5321): no line of the text can end the mail.
QByteArray dotStuffed(const QByteArray &text);

} // namespace mailText
