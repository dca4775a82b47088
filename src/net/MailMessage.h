// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/modEmail.h"

#include <QByteArray>
#include <QDateTime>

/// A mail as the user means it.
struct MailDraft
{
    QString senderAddress;
    QString senderName; ///< Empty: "Quillets User".
    QString organization;
    QList<MailRecipient> recipients;
    QString subject;
    QString body;
    QDateTime date;
    QString versionText; ///< Of the program.
};

/// How servers are spoken to.
enum class MailStyle
{
    Plain, ///< Addresses in the envelope as they are, all dates in one zone.
    Strict ///< Addresses in angle brackets, dates in the zone of this computer.
};

/// A mail as it goes over the wire.
struct MailMessage
{
    QByteArray sender;                ///< The line of the envelope, without its end.
    QList<QByteArray> recipientLines; ///< Of the envelope, likewise.
    QByteArray header;                ///< Lines with their ends, without the empty one behind them.
    QByteArray body;                  ///< Ends with CR LF; dots are not doubled yet.

    qsizetype length() const { return sender.size() + header.size() + body.size(); }
};

/// Nothing in the texts can become a command, a header or the end of the mail. ASCII goes as it is written; other texts
/// are encoded so that each mail program shows them.
MailMessage composeMail(const MailDraft &draft, MailStyle style);
