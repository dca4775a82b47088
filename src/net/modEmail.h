// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "net/Notice.h"
#include "net/bookFile.h"

#include <QList>

#include <optional>

struct clsprogramoptions;

/// Who gets a mail.
struct MailRecipient
{
    QString address; ///< While recipients are resolved it may be an alias.
    QString name;    ///< May be empty.

    bool operator==(const MailRecipient &) const = default;
};

/// One address of the address book.
struct AddressBookEntry
{
    QString alias;
    QString address;
    QString name;

    bool operator==(const AddressBookEntry &) const = default;
};

/// The recipients of a mail as they are typed, and the address book.
namespace modEmail
{

/// The word with the "@" is the address; the name is in parentheses, in quotes, or the rest. Without an "@" the whole
/// item is an alias.
MailRecipient parseRecipient(QStringView item);
/// Parted by commas; empty items are passed over.
QList<MailRecipient> parseRecipients(QStringView text);
bool isEmailAddress(QStringView address);

QList<AddressBookEntry> entriesOf(const QList<BookLine> &lines);
/// As the editor writes it.
QString editorLine(const AddressBookEntry &entry);

/// The addresses behind what was typed. The failure is the box to be shown.
Outcome<QList<MailRecipient>, Notice> resolveRecipients(QStringView text, const QList<AddressBookEntry> &book);
/// The box for recipients that are empty.
Notice noRecipient();
/// What the options lack for mailing; none when nothing is missing.
std::optional<Notice> missingOptions(const clsprogramoptions &options);

} // namespace modEmail
