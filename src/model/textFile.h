// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The bytes of the program's text files: one per character while all are below 256, else UTF-8 behind its mark.
namespace textFile
{

/// Of such a file; longer ones are neither read nor written.
inline constexpr qint64 MaximumBytes = 1024 * 1024;

QByteArray encode(const QString &text);
/// Reads both forms up to the first 0 byte; tabs become blanks.
QString decode(const QByteArray &bytes);
/// The text as one line: line breaks and NULs become blanks.
QString flattened(QString text);
/// The lines of a text, trimmed of blanks. An LF behind a CR makes an empty line.
QList<QStringView> lines(QStringView text);

} // namespace textFile
