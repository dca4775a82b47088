// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

/// What an alias stands for, found by its name whatever the case of its letters.
template <class Entry> class AliasIndex
{
public:
    /// Each entry names its alias in `alias`.
    explicit AliasIndex(const QList<Entry> &entries)
    {
        for (const Entry &entry : entries)
            m_entries[entry.alias.toCaseFolded()].append(entry);
    }

    QList<Entry> of(const QString &alias) const { return m_entries.value(alias.toCaseFolded()); }

private:
    QHash<QString, QList<Entry>> m_entries;
};

/// Puts what aliases stand for in their place. Aliases may stand for aliases.
namespace aliasResolution
{

inline constexpr int MostPasses = 5;
inline constexpr qsizetype MostItems = 1000; ///< Aliases of many aliases, or of themselves, grow no further.

enum class Pass
{
    Done,
    Again, ///< What an alias stands for is an alias.
    Failed ///< Nothing is known of the last item, or there are too many.
};

/// One pass over the items. An alias that nothing is known of goes. `isFinal` tells an address from an alias, `target`
/// makes an item of an entry, `name` is where an item holds its address or alias.
template <class Item, class Entry, class IsFinal, class Target>
Pass pass(QList<Item> &items, QString Item::*name, const AliasIndex<Entry> &book, IsFinal isFinal, Target target)
{
    QList<Item> next;
    bool isLastKnown = false;
    bool areAllFinal = true;
    for (const Item &item : std::as_const(items)) {
        isLastKnown = isFinal(item.*name);
        if (isLastKnown) {
            next.append(item);
            continue;
        }
        for (const Entry &entry : book.of(item.*name)) {
            if (next.size() > MostItems)
                return Pass::Failed;
            next.append(target(entry));
            isLastKnown = true;
            areAllFinal = areAllFinal && isFinal(next.last().*name);
        }
    }
    items = next;
    if (!isLastKnown || items.size() > MostItems)
        return Pass::Failed;
    return areAllFinal ? Pass::Done : Pass::Again;
}

/// None when an alias remains after all passes, the last item is unknown or there are too many.
template <class Item, class Entry, class IsFinal, class Target>
std::optional<QList<Item>> resolve(QList<Item> items, QString Item::*name, const QList<Entry> &entries, IsFinal isFinal,
                                   Target target)
{
    const AliasIndex<Entry> book(entries);
    Pass result = Pass::Again;
    for (int k = 0; k < MostPasses && result == Pass::Again; ++k)
        result = pass(items, name, book, isFinal, target);
    if (result == Pass::Done)
        return items;
    return std::nullopt;
}

} // namespace aliasResolution
