// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Notice.h"
#include "net/bookFile.h"

#include <QHash>
#include <QStringList>

#include <optional>

/// An alias as the editor of the books shows it.
struct BookAlias
{
    QString name;
    QString lines; ///< Its addresses, each behind it a CR LF.

    bool operator==(const BookAlias &) const = default;
};

/// An alias that no book file can hold.
struct UnwritableAlias
{
    QString alias;
    Notice notice;
};

/// What the editor of the books refuses, and what it says.
namespace bookRules
{

/// One alias for each name, whatever the case of its letters, in the order of the entries: the text of its box is made
/// of `editorLine` of modSend or modEmail.
template <class Entry> QList<BookAlias> aliasesOf(const QList<Entry> &entries, QString (*editorLine)(const Entry &));

/// Why the alias at a place (0-based) cannot get a name, which has been trimmed; the names are those of all aliases.
std::optional<Notice> refusal(const QString &name, const QStringList &names, qsizetype place);
/// The name that an alias gets instead of an empty one; the place is 0-based.
QString substituteName(qsizetype place);

/// The first alias with a character that would not be in the file as it was typed. A file that is marked as UTF-8 holds
/// all characters, others those below 256.
std::optional<UnwritableAlias> unwritable(const QList<BookLine> &lines, bool isMarked);

Notice noAlias();   ///< Addresses are typed before there is an alias.
Notice noAddress(); ///< An alias without addresses is selected.
Notice deleteQuestion(const QString &alias);

} // namespace bookRules

template <class Entry>
QList<BookAlias> bookRules::aliasesOf(const QList<Entry> &entries, QString (*editorLine)(const Entry &))
{
    QList<BookAlias> aliases;
    QHash<QString, qsizetype> places;
    for (const Entry &entry : entries) {
        const QString key = entry.alias.toCaseFolded();
        if (!places.contains(key)) {
            places.insert(key, aliases.size());
            aliases.append({entry.alias, {}});
        }
        aliases[places.value(key)].lines += editorLine(entry) + QStringLiteral("\r\n");
    }
    return aliases;
}
