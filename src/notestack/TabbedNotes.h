// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/LiveNote.h"

#include <memory>
#include <vector>

class NoteTabs;

/// The notes of the NoteStack and their tabs, in step: note i is behind tab i, counted from 0. Without a note one empty
/// tab is left. Tells nobody which tab is chosen while it moves them; whoever changes something shows it.
class TabbedNotes
{
public:
    explicit TabbedNotes(NoteTabs &tabs);
    TabbedNotes(const TabbedNotes &) = delete;
    TabbedNotes &operator=(const TabbedNotes &) = delete;
    ~TabbedNotes();

    bool isEmpty() const { return m_notes.empty(); }
    int count() const { return static_cast<int>(m_notes.size()); }
    std::vector<qint32> tags() const;
    /// Null beyond the notes.
    LiveNote *at(int index) const;
    LiveNote *find(qint32 tag) const { return at(indexOf(tag)); }
    /// -1 when it is not here.
    int indexOf(qint32 tag) const;
    LiveNote *chosen() const;

    /// Behind the others, and chosen.
    void add(std::unique_ptr<LiveNote> note);
    /// The note goes by deleteLater. In the place of the chosen one the next is chosen, or the last; when another one
    /// goes, the chosen one stays chosen.
    void remove(int index);
    /// Puts the notes into this order of tags; those that are not in it come last.
    void reorder(const std::vector<qint32> &order, qint32 chosen);

private:
    void choose(int index);
    void renumber();

    NoteTabs &m_tabs;
    std::vector<std::unique_ptr<LiveNote>> m_notes;
};
