// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/NoteAction.h"

#include "controls/noteFont.h"
#include "forms/Program.h"
#include "forms/modHelp.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"
#include "notes/commands/noteClipboard.h"
#include "notes/commands/noteEditing.h"
#include "notes/commands/noteFinding.h"
#include "notes/commands/notePrinting.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/NoteTitle.h"
#include "notes/parts/textLinks.h"
#include "platform/Prompts.h"
#include "security/noteLocks.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

QString translated(const char *text)
{
    return QCoreApplication::translate("NoteAction", text);
}

} // namespace

NoteHost *NoteAction::host() const
{
    return NoteHost::of(m_program, m_tag);
}

LiveNote *NoteAction::note() const
{
    NoteHost *home = host();
    return home != nullptr ? home->live(m_tag) : nullptr;
}

void NoteAction::say(const Said &said) const
{
    if (said.text != nullptr)
        m_program.prompts().tell({translated(said.text), translated(said.caption), Message::Icon::Critical}, m_owner);
}

bool NoteAction::refuses(NoteCommand command) const
{
    const auto &refused = m_home.refusedWhenLocked;
    if (!note()->locked || std::find(refused.begin(), refused.end(), command) == refused.end())
        return false;
    say(m_home.refusedLocked);
    return true;
}

void NoteAction::run(NoteCommand command) const
{
    using enum NoteCommand;
    if (note() == nullptr || refuses(command))
        return;
    switch (command) {
    case Move:
        return askAndMove();
    case Print:
        return print();
    case Title:
        return editTitle();
    case Locked:
        return toggleLock();
    case Copy:
        return copy();
    case Paste:
        return paste();
    case Delete:
        return askAndDelete();
    case Password:
    case Alarm:
    case Settings:
    case Send:
    case Email:
        return openDialog(command);
    case Help:
        return modHelp::ShowHelp(m_program);
    case LargerFont:
    case SmallerFont:
    case UsualFont:
        return changeFontSize(command);
    case FindNext:
        return findNext();
    case Toolbar:
    case Scrolled:
    case OnTop:
        return host()->runOwn(command);
    case None:
        return;
    }
}

/// The note is not read-only, or its password was given; and it is still there, and not locked.
bool NoteAction::passes(const Said &refusal) const
{
    const noteLocks::Refusal refused{translated(refusal.text), translated(refusal.caption)};
    return noteLocks::checkReadOnly(m_program, clsNoteProps(note()->record), noteLocks::readOnlyDescription(), refused,
                                    m_owner) &&
           note() != nullptr && !note()->locked;
}

void NoteAction::openDialog(NoteCommand command) const
{
    const auto dialog = noteDialogs::find(command);
    if (dialog == nullptr)
        return;
    host()->commitEditsOf(m_tag);
    if (noteLocks::checkAccess(m_program, clsNoteProps(note()->record), noteDialogs::failure(*dialog), m_owner) &&
        note() != nullptr && !note()->locked)
        dialog->open(m_program, m_tag, m_owner, m_home.captions);
}

void NoteAction::editText(const QString &typed) const
{
    LiveNote *now = note();
    if (now == nullptr || now->locked || now->body.isEditing() ||
        !noteEditing::mayEdit(m_program, clsNoteProps(now->record), m_owner))
        return;
    now = note();
    if (now == nullptr || now->locked || !host()->isShown(*now))
        return;
    host()->beginTextEditing(*now);
    now->body.type(typed);
}

void NoteAction::toggleMark(qsizetype at) const
{
    LiveNote *now = note();
    if (now == nullptr || now->locked || now->body.isEditing())
        return;
    const QString text = now->record.Data;
    if (at >= text.size() || !noteEditing::mayEdit(m_program, clsNoteProps(now->record), m_owner))
        return;
    now = note();
    // It was asked about this text.
    if (now == nullptr || now->locked || now->body.isEditing() || now->record.Data != text)
        return;
    const QChar mark = textLinks::toggled(text.at(at));
    now->body.replaceMark(text, at, mark);
    now->record.Data[at] = mark;
    now->markChanged();
}

void NoteAction::editTitle() const
{
    LiveNote *now = note();
    if (now == nullptr || now->locked || host()->titleEditor().isEditing())
        return;
    now->body.commit();
    if (!noteLocks::checkTitleEditing(m_program, clsNoteProps(now->record),
                                      noteTitles::promptTitle(now->record, noteTitles::PromptReserve), m_owner))
        return;
    now = note();
    if (now != nullptr && !now->locked && host()->isShown(*now))
        host()->beginTitleEditing(*now);
}

void NoteAction::copy() const
{
    if (!note()->locked)
        noteClipboard::copy(note()->record.Data);
}

void NoteAction::paste() const
{
    if (!note()->locked)
        noteEditing::paste(m_program, note()->record, note()->body);
}

/// Goes on with what was looked for last.
void NoteAction::findNext() const
{
    if (!note()->locked)
        noteFinding::showNext(note()->body, m_program.lastSearch);
}

void NoteAction::print() const
{
    LiveNote &now = *note();
    if (now.locked)
        return;
    now.body.commit();
    const QFont font = noteFont::of(now.record, host()->hostWindow().font());
    NoteTitle &title = host()->titleEditor();
    notePrinting::printSheet(m_program,
                             {title.shownTitle(), title.label().font().family(), now.record.Data, m_home.lineEnd,
                              now.record.DateCreated, font},
                             m_owner);
}

void NoteAction::toggleLock() const
{
    note()->locked ? unlock() : host()->setLocked(m_tag, true);
}

/// One of the note's settings, asked for like the others.
void NoteAction::changeFontSize(NoteCommand command) const
{
    const QString failure = noteDialogs::failure(*noteDialogs::find(NoteCommand::Settings));
    if (note()->locked || !noteLocks::checkAccess(m_program, clsNoteProps(note()->record), failure, m_owner))
        return;
    LiveNote *now = note();
    if (now == nullptr || now->locked)
        return;
    if (command == NoteCommand::UsualFont)
        now->setFontSize(m_program.NoteTemplate.FontSize);
    else
        now->stepFontSize(command == NoteCommand::LargerFont ? 1 : -1);
}

void NoteAction::unlock() const
{
    const LiveNote *now = note();
    if (now == nullptr || !now->locked)
        return;
    const clsNoteProps record = now->record;
    if (noteLocks::checkUnlocking(m_program, record, noteTitles::promptTitle(record, 0), m_owner) && host() != nullptr)
        host()->setLocked(m_tag, false);
}

void NoteAction::askAndMove() const
{
    if (!m_home.checksMoves || passes(m_home.refusedMove))
        move();
}

/// The note keeps its entry in the data file: its new place is written over the old one.
void NoteAction::move() const
{
    NoteHost *from = host();
    if (from == nullptr)
        return;
    from->commitEditsOf(m_tag);
    from->updateRecords();
    const LiveNote *now = note();
    const clsNoteProps record = now->record;
    const Lid lid = now->locked ? Lid::Shut : Lid::AsRecorded;
    from->letGo(m_tag);
    m_home.move(m_program, record, lid);
}

void NoteAction::askAndDelete() const
{
    if (note() == nullptr || !noteTitles::confirmDeletion(m_program, clsNoteProps(note()->record), m_owner) ||
        note() == nullptr)
        return;
    if (note()->locked)
        say(m_home.lockedDeletion);
    else if (passes(m_home.refusedDeletion))
        deleteNow();
}

void NoteAction::deleteNow() const
{
    NoteHost *home = host();
    home->commitEditsOf(m_tag);
    home->updateRecords();
    const DeletedNote deleted{note()->record, home->tags(), home->hostWindow().frameGeometry()};
    Program &program = m_program;
    home->remove(m_tag);
    if (program.noteDeleted)
        program.noteDeleted(deleted);
}
