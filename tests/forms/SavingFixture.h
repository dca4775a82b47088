// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/PlainNote.h"
#include "support/ProgramFixture.h"

#include <vector>

/// A program with notes on the desktop.
class SavingFixture final : public ProgramFixture
{
public:
    explicit SavingFixture(int count = 0) { makeNotes(count); }

    void makeNotes(int count)
    {
        for (int made = 0; made < count; ++made)
            notes.push_back(new PlainNote(program, static_cast<qint32>(notes.size()) + 1));
    }
    /// As an edit does that ends.
    void change(size_t index, const QString &text)
    {
        notes[index]->record.Data = text;
        modForms::markChanged(program, notes[index]->record);
    }
    int changedCount() const
    {
        const auto isChanged = [](const PlainNote *note) { return note->record.SaveTag == 1; };
        return static_cast<int>(std::count_if(notes.begin(), notes.end(), isChanged));
    }

    std::vector<PlainNote *> notes;
};
