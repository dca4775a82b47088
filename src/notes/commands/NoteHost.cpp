// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/NoteHost.h"

#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/NoteTitle.h"

NoteHost *NoteHost::of(const Program &program, qint32 tag)
{
    return dynamic_cast<NoteHost *>(program.forms.holderOf(tag));
}

clsNoteProps *NoteHost::recordOf(qint32 tag)
{
    LiveNote *note = live(tag);
    return note != nullptr ? &note->record : nullptr;
}

clsNoteProps NoteHost::recordNow(qint32 tag)
{
    const LiveNote &note = *live(tag);
    clsNoteProps now = note.record;
    now.Data = note.textNow();
    const QString title = tag == m_titleTag ? titleEditor().typedTitle() : QString();
    if (!title.trimmed().isEmpty() && title != noteTitles::title(now))
        now.TitleBarTitle = title;
    return now;
}

void NoteHost::updateRecords()
{
    for (const qint32 tag : tags()) {
        const clsNoteProps now = recordNow(tag);
        LiveNote &note = *live(tag);
        // Not the records: a number in them that is none differs from itself.
        if (now.Data == note.record.Data && now.TitleBarTitle == note.record.TitleBarTitle)
            continue;
        note.record = now;
        note.markChanged();
    }
}

void NoteHost::commitEditing()
{
    titleEditor().commitQuietly();
    for (const qint32 tag : tags())
        if (LiveNote *note = live(tag))
            note->body.commit();
}

void NoteHost::commitEditsOf(qint32 tag)
{
    if (tag == m_titleTag)
        titleEditor().commitQuietly();
    if (LiveNote *note = live(tag))
        note->body.commit();
}

void NoteHost::TextLostFocus()
{
    if (LiveNote *note = chosen())
        note->body.commit();
}

void NoteHost::setLocked(qint32 tag, bool on)
{
    LiveNote *note = live(tag);
    if (note == nullptr)
        return;
    if (on)
        commitEditsOf(tag);
    note->setLocked(on);
    showLock(*note);
}

void NoteHost::remove(qint32 tag)
{
    LiveNote *note = live(tag);
    if (note == nullptr)
        return;
    commitEditsOf(tag);
    const clsNoteProps record = note->record;
    Program &program = m_program;
    letGo(tag);
    // A box may open, in which this window goes.
    modForms::removeNote(program, record);
}

void NoteHost::beginTextEditing(LiveNote &note)
{
    hostWindow().activateWindow();
    note.body.BeginTextEditing(note.record.Data);
}

void NoteHost::beginTitleEditing(LiveNote &note)
{
    note.body.commit();
    hostWindow().activateWindow();
    m_titleTag = note.tag();
    titleEditor().beginEditing(noteTitles::title(note.record));
}

void NoteHost::titleEdited(const QString &text)
{
    const qint32 tag = m_titleTag;
    LiveNote *note = live(tag);
    if (note == nullptr)
        return;
    Program &program = m_program;
    const bool insist = isShown(*note);
    const bool taken = noteTitles::take(program, note->record, text, insist, &hostWindow());
    // A box may have been open: the note may live elsewhere by now, and this window may be gone.
    NoteHost *home = of(program, tag);
    note = home != nullptr ? home->live(tag) : nullptr;
    if (note == nullptr)
        return;
    home->showTitle(*note);
    if (!taken && insist && home->isShown(*note) && !note->locked)
        home->beginTitleEditing(*note);
}
