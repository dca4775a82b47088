// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QByteArray>
#include <QString>

class QDateTime;

/// Why a file could not be read.
struct ReadFailure
{
    enum class Kind
    {
        Missing,
        Unreadable,
        TooLarge
    };
    Kind kind;
    QString reason;
};

/// Reading and writing files of the program, each as a whole.
namespace wholeFile
{

/// Replaces the file as a whole or leaves it as it was, and returns when it would outlast a power cut; the error is the
/// reason. The file is its owner's alone where the file system can tell owners apart.
Outcome<Done, QString> replace(const QString &path, QByteArrayView bytes);

/// As replace, for a file that is read with the same bound: what is there and cannot be read is moved aside, under a
/// name with the moment and "unreadable". Refuses bytes that could not be read again.
Outcome<Done, QString> replaceReadable(const QString &path, QByteArrayView bytes, qint64 maxBytes);

/// Removes a file, so that it would not come back with a power cut. One that is not there is removed.
Outcome<Done, QString> remove(const QString &path);

/// Copies a file beside itself under a name with the moment and the suffix, such as
/// "quillets-2026-11-22-221530-damaged.dat". Never overwrites; the value is the path of the copy.
Outcome<QString, QString> keepAside(const QString &sourcePath, const QString &suffix, const QDateTime &now);

/// Gives a file, whatever is in it, such a name; the value is its new path.
Outcome<QString, QString> moveAside(const QString &sourcePath, const QString &suffix, const QDateTime &now);

/// Missing is only what is known not to be there; a folder or a device is unreadable.
Outcome<QByteArray, ReadFailure> read(const QString &path, qint64 maxBytes);

} // namespace wholeFile
