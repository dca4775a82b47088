// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/TabbedNotes.h"

#include "notestack/NoteTabs.h"

#include <QSignalBlocker>

#include <algorithm>

TabbedNotes::TabbedNotes(NoteTabs &tabs) : m_tabs(tabs)
{
    m_tabs.addTab(QString());
}

TabbedNotes::~TabbedNotes() = default;

std::vector<qint32> TabbedNotes::tags() const
{
    std::vector<qint32> result;
    for (const auto &note : m_notes)
        result.push_back(note->tag());
    return result;
}

LiveNote *TabbedNotes::at(int index) const
{
    return index >= 0 && index < count() ? m_notes[static_cast<size_t>(index)].get() : nullptr;
}

int TabbedNotes::indexOf(qint32 tag) const
{
    const auto found =
        std::find_if(m_notes.begin(), m_notes.end(), [tag](const auto &note) { return note->tag() == tag; });
    return found == m_notes.end() ? -1 : static_cast<int>(found - m_notes.begin());
}

LiveNote *TabbedNotes::chosen() const
{
    return at(m_tabs.currentIndex());
}

void TabbedNotes::choose(int index)
{
    const QSignalBlocker quiet(m_tabs);
    m_tabs.setCurrentIndex(index);
}

void TabbedNotes::renumber()
{
    for (int i = 0; i < count(); ++i)
        at(i)->body.setIndex(i);
}

void TabbedNotes::add(std::unique_ptr<LiveNote> note)
{
    {
        const QSignalBlocker quiet(m_tabs);
        if (!isEmpty())
            m_tabs.addTab(QString());
    }
    m_notes.push_back(std::move(note));
    at(count() - 1)->body.setIndex(count() - 1);
    choose(count() - 1);
}

void TabbedNotes::remove(int index)
{
    const int chosenBefore = m_tabs.currentIndex();
    auto gone = std::move(m_notes[static_cast<size_t>(index)]);
    m_notes.erase(m_notes.begin() + index);
    renumber();
    {
        const QSignalBlocker quiet(m_tabs);
        if (m_tabs.count() > 1)
            m_tabs.removeTab(index);
    }
    const int next = chosenBefore > index ? chosenBefore - 1 : chosenBefore;
    choose(qMin(next, m_tabs.count() - 1));
    gone->stop();
    // An event of it may be under way.
    gone.release()->deleteLater();
}

void TabbedNotes::reorder(const std::vector<qint32> &order, qint32 chosen)
{
    const auto place = [&order](qint32 tag) { return std::find(order.begin(), order.end(), tag); };
    std::stable_sort(m_notes.begin(), m_notes.end(),
                     [&place](const auto &a, const auto &b) { return place(a->tag()) < place(b->tag()); });
    renumber();
    choose(qMax(0, indexOf(chosen)));
}
