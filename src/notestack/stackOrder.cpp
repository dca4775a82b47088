// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/stackOrder.h"

#include <QHash>

#include <algorithm>

namespace stackOrder
{

std::vector<qint32> sorted(const std::vector<Note> &notes, const QStringList &kept)
{
    QHash<QString, qsizetype> places;
    for (qsizetype i = kept.size(); i-- > 0;)
        places.insert(kept[i], i);
    std::vector<std::pair<qsizetype, qint32>> ranks;
    for (const Note &note : notes)
        ranks.emplace_back(note.key.isEmpty() ? kept.size() : places.value(note.key, kept.size()), note.tag);
    std::stable_sort(ranks.begin(), ranks.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<qint32> tags;
    for (const auto &[rank, tag] : ranks)
        tags.push_back(tag);
    return tags;
}

} // namespace stackOrder
