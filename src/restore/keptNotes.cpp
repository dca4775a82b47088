// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/keptNotes.h"

#include "security/noteLocks.h"

#include <algorithm>
#include <array>

namespace
{

using Likeness = bool (*)(const clsNoteProps &, const clsNoteProps &);

bool sameDate(const clsNoteProps &a, const clsNoteProps &b)
{
    return a.DateCreated == b.DateCreated;
}

bool sameTitle(const clsNoteProps &a, const clsNoteProps &b)
{
    return a.TitleBarTitle == b.TitleBarTitle;
}

bool sameText(const clsNoteProps &a, const clsNoteProps &b)
{
    return a.Data == b.Data;
}

/// The surest first.
constexpr std::array<Likeness, 5> Likenesses{
    [](const clsNoteProps &a, const clsNoteProps &b) { return sameDate(a, b) && sameTitle(a, b) && sameText(a, b); },
    [](const clsNoteProps &a, const clsNoteProps &b) { return sameTitle(a, b) && sameText(a, b); },
    [](const clsNoteProps &a, const clsNoteProps &b) { return sameDate(a, b) && sameTitle(a, b); },
    [](const clsNoteProps &a, const clsNoteProps &b) { return sameDate(a, b) && sameText(a, b); },
    sameDate,
};

void cover(KeptNote &kept, const PresentNote &present)
{
    const bool isLocked = present.isLocked || noteLocks::opensLocked(*present.record);
    if (!kept.isCovered() && isLocked)
        kept.password = present.record->Pwd;
}

void pair(KeptNote &kept, const PresentNote &present)
{
    const bool isSame = sameTitle(kept.note, *present.record) && sameText(kept.note, *present.record);
    kept.standing = isSame ? Standing::Same : Standing::Changed;
    cover(kept, present);
}

/// Takes those that are alike out of the two lists of what has no partner yet.
void pairAlike(Likeness alike, std::vector<KeptNote *> &kept, std::vector<PresentNote> &present)
{
    std::erase_if(kept, [&](KeptNote *note) {
        const auto found = std::find_if(present.begin(), present.end(),
                                        [&](const PresentNote &other) { return alike(note->note, *other.record); });
        if (found == present.end())
            return false;
        pair(*note, *found);
        present.erase(found);
        return true;
    });
}

} // namespace

bool KeptNote::comesBackLocked() const
{
    return noteLocks::opensLocked(note);
}

std::vector<KeptNote> keptNotes::compared(std::vector<clsNoteProps> kept, const std::vector<PresentNote> &present)
{
    std::vector<KeptNote> notes;
    for (clsNoteProps &note : kept)
        notes.push_back({std::move(note)});
    std::vector<KeptNote *> alone;
    for (KeptNote &note : notes) {
        if (note.comesBackLocked())
            note.password = note.note.Pwd;
        alone.push_back(&note);
    }
    std::vector<PresentNote> unpaired = present;
    for (const Likeness alike : Likenesses)
        pairAlike(alike, alone, unpaired);
    std::stable_sort(notes.begin(), notes.end(),
                     [](const KeptNote &a, const KeptNote &b) { return a.standing < b.standing; });
    return notes;
}
