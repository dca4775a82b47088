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

/// Replaces the file as a whole or leaves it as it was; the error is the reason. The file is its owner's alone.
Outcome<Done, QString> replaceFile(const QString &path, QByteArrayView bytes);

/// Copies a file beside itself under a name with the moment and the suffix, such as
/// "quillets-2026-11-22-221530-damaged.dat". Never overwrites; the value is the path of the copy.
Outcome<QString, QString> keepAside(const QString &sourcePath, const QString &suffix, const QDateTime &now);

/// Missing is only what is known not to be there; a folder or a device is unreadable.
Outcome<QByteArray, ReadFailure> readWholeFile(const QString &path, qint64 maxBytes);
