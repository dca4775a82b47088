// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Program.h"
#include "forms/modFormsHiding.h"
#include "model/logs.h"
#include "model/windowState.h"
#include "notes/commands/LiveNote.h"
#include "notestack/NoteTabs.h"
#include "notestack/TabbedNotes.h"
#include "notestack/frmNoteStack.h"
#include "notestack/stackOrder.h"

// What the NoteStack keeps for itself from start to start: its place, whether it was shown, and the order of its tabs,
// which the data file does not hold: there the notes stand by the time they were written.

namespace
{

QString placeFile(const Program &program)
{
    return program.paths().DataFolder + QStringLiteral("/window.set");
}

} // namespace

void frmNoteStack::restorePlace()
{
    m_kept = windowState::read(placeFile(m_program));
    restoreGeometry(m_kept.geometry);
}

bool frmNoteStack::wasShown(const Program &program)
{
    return windowState::read(placeFile(program)).isShown;
}

void frmNoteStack::keepPlace()
{
    WindowState now = m_kept;
    now.geometry = saveGeometry();
    now.isShown = isVisible() || modForms::isHiddenWithAll(m_program, *this);
    keep(now);
    keepOrder();
}

/// By the records as they are in the data file, so that the next start finds them there.
void frmNoteStack::keepOrder()
{
    if (m_program.file.LoadingData)
        return;
    WindowState now = m_kept;
    now.order.clear();
    for (const qint32 tag : tags())
        now.order.append(m_program.file.image.keyOf(tag));
    now.chosen = m_tabs->currentIndex();
    keep(now);
}

/// Nobody is told when it fails: the notes are safe, and lie where new ones would.
void frmNoteStack::keep(const WindowState &now)
{
    if (now == m_kept)
        return;
    if (const auto written = windowState::write(placeFile(m_program), now); written)
        m_kept = now;
    else
        qCWarning(logs::windows) << "The place of the NoteStack is not kept:" << written.error();
}

void frmNoteStack::restoreOrder()
{
    const WindowState before = windowState::read(placeFile(m_program));
    const QStringList &kept = before.order;
    const QString chosenBefore = kept.value(before.chosen);
    std::vector<stackOrder::Note> notes;
    qint32 chosenNow = m_notes->isEmpty() ? 0 : chosen()->tag();
    for (const qint32 tag : tags()) {
        // The image is ahead of it where the journal has brought something back.
        notes.push_back({tag, m_program.file.disk.keyOf(tag)});
        if (!chosenBefore.isEmpty() && notes.back().key == chosenBefore)
            chosenNow = tag;
    }
    arrange(stackOrder::sorted(notes, kept), chosenNow);
}

void frmNoteStack::arrange(const std::vector<qint32> &order, qint32 shown)
{
    m_notes->reorder(order, shown);
    for (const qint32 tag : tags()) {
        showTitle(*live(tag));
        m_tabs->setInk(m_notes->indexOf(tag), live(tag)->ink);
    }
    SetActivatedForm();
}
