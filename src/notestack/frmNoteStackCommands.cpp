// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "forms/modHelp.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteAction.h"
#include "notes/modCreateNote.h"
#include "notes/parts/NoteTitle.h"
#include "notestack/NoteTabs.h"
#include "notestack/TabbedNotes.h"
#include "notestack/frmNoteStack.h"
#include "notestack/stackHome.h"
#include "platform/Prompts.h"

// What is commanded of the NoteStack and of its notes, and how notes leave it.

NoteAction frmNoteStack::action()
{
    const LiveNote *note = chosen();
    return {m_program, note != nullptr ? note->tag() : 0, StackHome, this};
}

void frmNoteStack::run(NoteCommand command)
{
    if (command == NoteCommand::Help)
        modHelp::ShowHelp(m_program);
    else
        action().run(command);
}

void frmNoteStack::toolbarCommanded(StackToolbar::Command command)
{
    if (command == StackToolbar::Command::Add)
        modCreateNote::createNewNote(m_program, Home::NoteStack, this);
    else if (command == StackToolbar::Command::Hide)
        hideStack();
    else
        run(StackToolbar::noteCommand(command));
}

void frmNoteStack::lockform(int index)
{
    if (const LiveNote *note = index < 0 ? chosen() : m_notes->at(index))
        setLocked(note->tag(), true);
}

void frmNoteStack::DeleteThisNote(int index)
{
    if (const LiveNote *note = index < 0 ? chosen() : m_notes->at(index))
        remove(note->tag());
}

void frmNoteStack::letGo(qint32 tag)
{
    if (tag == titleTag())
        m_title->giveUp();
    m_notes->remove(m_notes->indexOf(tag));
    SetActivatedForm();
}

void frmNoteStack::moveAway(qint32 tag)
{
    NoteAction(m_program, tag, StackHome, this).move();
}

/// Notes leave from the chosen tab to the last, then those before it from the back; locked ones stay.
void frmNoteStack::TransferAllToDesktop()
{
    if (m_notes->isEmpty())
        return;
    commitEditing();
    std::vector<qint32> order = tags();
    const auto first = order.begin() + m_tabs->currentIndex();
    std::reverse(order.begin(), first);
    std::rotate(order.begin(), first, order.end());
    bool lockedSeen = false;
    modForms::moveAll(m_program, tr("Transferring quillets to desktop ..."), order, [this, &lockedSeen](qint32 tag) {
        const LiveNote *note = live(tag);
        const bool locked = note != nullptr && note->locked;
        lockedSeen = lockedSeen || locked;
        if (note != nullptr && !locked)
            moveAway(tag);
    });
    if (lockedSeen)
        m_program.prompts().tell({tr("Sorry, this is a locked quillet."), tr("Locked"), Message::Icon::Critical}, this);
}

/// A due alarm goes off on the desktop: the note is moved there with the alarm on, and fires at once.
void frmNoteStack::AlarmCont(qint32 tag)
{
    clsNoteProps *record = recordOf(tag);
    if (record == nullptr || m_closing)
        return;
    record->AlarmOn = true;
    moveAway(tag);
}
