// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "net/Notice.h"
#include "net/SendTarget.h"
#include "net/bookFile.h"

#include <QList>

/// One address of the send book.
struct SendBookEntry
{
    QString alias;
    QString host;
    QString comment;
    qint32 port = 0;

    bool operator==(const SendBookEntry &) const = default;
};

/// The targets of a note as they are typed, and the send book.
namespace modSend
{

/// "host@port (comment)", the comment in any place. A port that is no number is 0; without ")" the rest is the comment.
SendTarget parseTarget(QStringView item);
/// Parted by commas; empty items are passed over.
QList<SendTarget> parseTargets(QStringView text);
/// Anything with a "." in it; all else is an alias.
bool isHostAddress(QStringView host);

QList<SendBookEntry> entriesOf(const QList<BookLine> &lines);
/// As the editor writes it: the usual port and an empty comment are left out.
QString editorLine(const SendBookEntry &entry);

/// A computer that has announced itself, as a target; empty where what it tells of itself cannot be one.
QString nearbyTarget(const QString &name, const QString &host, quint16 port);
/// The host addresses behind what was typed. The failure is the box to be shown.
Outcome<QList<SendTarget>, Notice> resolveTargets(QStringView text, const QList<SendBookEntry> &book);
/// The box for a text that is empty.
Notice noTarget();

} // namespace modSend
