// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/frmNoteStack.h"

#include "notes/commands/noteClipboard.h"
#include "notes/commands/noteDialogs.h"
#include "notes/commands/noteDressing.h"
#include "notes/commands/noteEditing.h"
#include "notes/commands/notePrinting.h"
#include "notes/commands/noteTitles.h"
#include "notes/modCreateNote.h"
#include "notes/parts/NoteTitle.h"
#include "notestack/NoteTabs.h"
#include "notestack/StackNote.h"
#include "platform/Prompts.h"
#include "security/noteLocks.h"
#include "forms/Program.h"
#include "forms/frmStatus.h"
#include "forms/modForms.h"
#include "forms/modHelp.h"

#include <QContextMenuEvent>
#include <QCoreApplication>

namespace
{

using Kind = MenuEntry::Kind;
using enum NoteCommand;

constexpr MenuEntry ShortMenu[] = {
    {"mnuDesktop0", QT_TRANSLATE_NOOP("NoteMenu", "To DeskTop"), Kind::Item, Move},
    {"mnuPrint0", QT_TRANSLATE_NOOP("NoteMenu", "Print"), Kind::Item, Print},
    {"mnuDash4", nullptr, Kind::Separator},
    {"mnuCopy", QT_TRANSLATE_NOOP("NoteMenu", "Copy"), Kind::Item, Copy},
    {"mnuPaste", QT_TRANSLATE_NOOP("NoteMenu", "Paste"), Kind::Item, Paste},
};

constexpr MenuEntry LongMenu[] = {
    {"mnuDesktop1", QT_TRANSLATE_NOOP("NoteMenu", "To DeskTop"), Kind::Item, Move},
    {"mnuPrint1", QT_TRANSLATE_NOOP("NoteMenu", "Print"), Kind::Item, Print},
    {"mnuDash0", nullptr, Kind::Separator},
    {"mnuTitle", QT_TRANSLATE_NOOP("NoteMenu", "Title"), Kind::Item, Title},
    {"mnuDash3", nullptr, Kind::Separator},
    {"mnuProps", QT_TRANSLATE_NOOP("NoteMenu", "Properties"), Kind::Submenu},
    {"mnuPassword", QT_TRANSLATE_NOOP("NoteMenu", "Password"), Kind::Check, Password, 1},
    {"mnuAlarm", QT_TRANSLATE_NOOP("NoteMenu", "Alarm"), Kind::Check, Alarm, 1},
    {"mnuLocked", QT_TRANSLATE_NOOP("NoteMenu", "Locked"), Kind::Check, Locked, 1},
    {"mnuDash1", nullptr, Kind::Separator},
    {"mnuActions", QT_TRANSLATE_NOOP("NoteMenu", "Actions"), Kind::Submenu},
    {"mnuSettings", QT_TRANSLATE_NOOP("NoteMenu", "Settings"), Kind::Item, Settings, 1},
    {"mnuSend", QT_TRANSLATE_NOOP("NoteMenu", "Send"), Kind::Item, Send, 1},
    {"mnuEmail", QT_TRANSLATE_NOOP("NoteMenu", "E-mail"), Kind::Item, Email, 1},
    {"mnuDash2", nullptr, Kind::Separator, None, 1},
    {"mnuDelete", QT_TRANSLATE_NOOP("NoteMenu", "Delete"), Kind::Item, Delete, 1},
    {"mnuHelp", QT_TRANSLATE_NOOP("NoteMenu", "Help"), Kind::Item, Help},
};

/// What a locked note refuses with a box.
constexpr std::array Guarded{Email, Send, Settings, Password, Alarm, Move, Delete};

} // namespace

void frmNoteStack::toolbarCommanded(StackToolbar::Command command)
{
    switch (command) {
    case StackToolbar::Command::Add:
        addNew();
        break;
    case StackToolbar::Command::Hide:
        hideStack();
        break;
    case StackToolbar::Command::Help:
        modHelp::ShowHelp(m_program);
        break;
    case StackToolbar::Command::Delete:
        run(NoteCommand::Delete);
        break;
    case StackToolbar::Command::ToDesktop:
        run(NoteCommand::Move);
        break;
    case StackToolbar::Command::Settings:
        run(NoteCommand::Settings);
        break;
    case StackToolbar::Command::Email:
        run(NoteCommand::Email);
        break;
    case StackToolbar::Command::Send:
        run(NoteCommand::Send);
        break;
    case StackToolbar::Command::Alarm:
        run(NoteCommand::Alarm);
        break;
    case StackToolbar::Command::Password:
        run(NoteCommand::Password);
        break;
    }
}

bool frmNoteStack::refusesLocked(const StackNote &note)
{
    if (note.locked)
        m_program.prompts().tell({tr("Sorry, this is a locked quillet."), tr("Locked"), Message::Icon::Critical}, this);
    return note.locked;
}

/// The frame of every command: nothing without a note, nothing that is guarded on a locked one.
void frmNoteStack::run(NoteCommand command)
{
    m_menuOpen = false;
    if (command == Help) {
        modHelp::ShowHelp(m_program);
        return;
    }
    StackNote *note = chosen();
    if (note == nullptr)
        return;
    const bool guarded = std::find(Guarded.begin(), Guarded.end(), command) != Guarded.end();
    if (!guarded || !refusesLocked(*note))
        runOn(*note, command);
}

void frmNoteStack::runOn(StackNote &note, NoteCommand command)
{
    switch (command) {
    case Move:
        toDesktop(note.record.Tag);
        break;
    case Print:
        print(note);
        break;
    case Title:
        editTitle();
        break;
    case Locked:
        note.locked ? unlock() : ShowLockLayer(note, true);
        break;
    case Copy:
        if (!note.locked)
            noteClipboard::copy(note.record.Data);
        break;
    case Paste:
        paste(note);
        break;
    case Delete:
        deleteNote(note.record.Tag);
        break;
    case Password:
    case Alarm:
    case Settings:
        openDialog(note, command);
        break;
    case Send:
    case Email:
    case Help:
    case Toolbar:
    case Scrolled:
    case OnTop:
    case None:
        break;
    }
}

void frmNoteStack::openDialog(const StackNote &note, NoteCommand command)
{
    const qint32 tag = note.record.Tag;
    const QString failure = command == Settings ? tr("Access to Settings failed.")
                            : command == Alarm  ? tr("Access to Alarm functions failed.")
                                                : tr("Access to Password functions failed.");
    commitEditing();
    if (!noteLocks::checkAccess(m_program, clsNoteProps(note.record), failure, this))
        return;
    if (command == Settings)
        noteDialogs::openSettings(m_program, tag, this);
    else if (command == Alarm)
        noteDialogs::openAlarm(m_program, tag, this);
    else
        noteDialogs::openPassword(m_program, tag, this);
}

void frmNoteStack::addNew()
{
    modCreateNote::createNewNote(m_program, true, this);
}

NoteMenu *frmNoteStack::makeMenu(const QString &name, std::span<const MenuEntry> entries)
{
    auto *menu = new NoteMenu(name, entries, this);
    connect(menu, &NoteMenu::chosen, this, &frmNoteStack::run);
    for (const NoteCommand command : {Send, Email})
        menu->setUnavailable(command, tr("Not in this version yet."));
    return menu;
}

void frmNoteStack::menuCommanded()
{
    const bool wasOpen = std::exchange(m_pressedWhileOpen, false) || m_menuOpen;
    StackNote *note = chosen();
    if (wasOpen || note == nullptr)
        return;
    if (m_noteMenu == nullptr) {
        m_noteMenu = makeMenu(QStringLiteral("mnuPopup2"), LongMenu);
        connect(
            m_noteMenu, &QMenu::aboutToHide, this, [this] { m_menuOpen = false; }, Qt::QueuedConnection);
    }
    if (!note->locked)
        note->body->commit();
    showMenuState(*note);
    m_menuOpen = true;
    m_noteMenu->popup(m_menu->mapToGlobal(QPoint(0, m_menu->height())));
}

void frmNoteStack::showMenuState(const StackNote &note)
{
    m_noteMenu->enableAll();
    m_noteMenu->setChecked(Alarm, note.record.AlarmOn);
    m_noteMenu->setChecked(Password, note.record.PwdOn);
    m_noteMenu->setChecked(Locked, note.locked);
    if (!note.locked)
        return;
    m_noteMenu->disableAll();
    m_noteMenu->setEnabled(Locked, true);
}

void frmNoteStack::openShortMenu(QPoint globalPosition)
{
    const StackNote *note = chosen();
    if (note == nullptr)
        return;
    if (m_shortMenu == nullptr)
        m_shortMenu = makeMenu(QStringLiteral("mnuPopup"), ShortMenu);
    m_shortMenu->setEnabled(Paste, !noteLocks::isReadOnly(note->record));
    m_shortMenu->popup(globalPosition);
}

void frmNoteStack::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        menuCommanded();
}

void frmNoteStack::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    StackNote *note = chosen();
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        menuCommanded();
    else if (enter && note != nullptr && note->locked)
        unlock();
    else if (enter && note != nullptr)
        beginTextEditing(*note);
    else
        QWidget::keyPressEvent(event);
}

void frmNoteStack::beginTextEditing(StackNote &note)
{
    const qint32 tag = note.record.Tag;
    if (note.locked || note.body->isEditing() || !noteEditing::mayEdit(m_program, clsNoteProps(note.record), this))
        return;
    StackNote *now = chosen();
    if (now != nullptr && now->record.Tag == tag && !now->locked)
        now->body->BeginTextEditing(now->record.Data);
}

void frmNoteStack::editTitle()
{
    const StackNote *note = chosen();
    if (note == nullptr || note->locked)
        return;
    const qint32 tag = note->record.Tag;
    TextLostFocus();
    if (!noteLocks::checkTitleEditing(m_program, clsNoteProps(note->record),
                                      noteTitles::promptTitle(note->record, noteTitles::PromptReserve), this))
        return;
    note = chosen();
    if (note == nullptr || note->record.Tag != tag || note->locked)
        return;
    m_titleTag = tag;
    m_title->beginEditing(noteTitles::title(note->record));
}

void frmNoteStack::titleEdited(const QString &text)
{
    clsNoteProps *record = recordOf(m_titleTag);
    if (record == nullptr)
        return;
    const qint32 tag = m_titleTag;
    const bool insist = isVisible() && !m_closing;
    const bool taken = noteTitles::take(m_program, *record, text, insist, this);
    const auto index = indexOf(tag);
    if (!index)
        return;
    showTitle(*m_notes[*index]);
    if (!taken && insist && chosen() == m_notes[*index].get())
        m_title->beginEditing(noteTitles::title(m_notes[*index]->record));
}

void frmNoteStack::deleteNote(qint32 tag)
{
    const clsNoteProps *record = recordOf(tag);
    if (record == nullptr || !noteTitles::confirmDeletion(m_program, *record, this))
        return;
    auto index = indexOf(tag);
    if (!index)
        return;
    const StackNote &note = *m_notes[*index];
    if (note.locked) {
        m_program.prompts().tell(
            {tr("You cannot delete a note that is locked"), tr("Deletion Error"), Message::Icon::Critical}, this);
        return;
    }
    const noteLocks::Refusal refusal{tr("Authentication invalid.  Deletion failed."), tr("Deletion Failed")};
    if (!noteLocks::checkReadOnly(m_program, clsNoteProps(note.record), noteLocks::readOnlyDescription(), refusal,
                                  this))
        return;
    index = indexOf(tag);
    if (index && !m_notes[*index]->locked)
        DeleteThisNote(static_cast<int>(*index));
}

void frmNoteStack::DeleteThisNote(int index)
{
    StackNote *note = index < 0 ? chosen() : noteAt(index);
    if (note == nullptr)
        return;
    note->body->commit();
    modForms::removeNote(m_program, note->record);
    removeTab(*indexOf(note->record.Tag));
}

void frmNoteStack::print(StackNote &note)
{
    if (note.locked)
        return;
    note.body->commit();
    const QFont font = noteDressing::textFont(note.record, this->font());
    notePrinting::printSheet(m_program,
                             {m_title->shownTitle(), m_title->label().font().family(),
                              notePrinting::wrappedBeforeLimit(note.record.Data, font, m_program.twips.perPixel()),
                              note.record.DateCreated, font},
                             this);
}

void frmNoteStack::paste(StackNote &note)
{
    if (!note.locked)
        noteEditing::paste(note.record, *note.body);
}

void frmNoteStack::unlock()
{
    const StackNote *note = chosen();
    if (note == nullptr || !note->locked)
        return;
    const qint32 tag = note->record.Tag;
    if (!noteLocks::checkUnlocking(m_program, clsNoteProps(note->record), noteTitles::promptTitle(note->record, 0),
                                   this))
        return;
    if (const auto index = indexOf(tag))
        ShowLockLayer(*m_notes[*index], false);
}

/// The note keeps its entry in the data file: its new place is written over the old one.
void frmNoteStack::toDesktop(qint32 tag)
{
    const auto index = indexOf(tag);
    if (!index)
        return;
    m_notes[*index]->body->commit();
    const clsNoteProps record = m_notes[*index]->record;
    const bool locked = m_notes[*index]->locked;
    removeTab(*index);
    modCreateNote::moveNote(m_program, record, false, locked);
}

/// Notes leave from the chosen tab to the last, then those before it from the back; locked ones stay.
void frmNoteStack::TransferAllToDesktop()
{
    if (isEmpty())
        return;
    commitEditing();
    const auto first = static_cast<size_t>(m_tabs->currentIndex());
    std::vector<qint32> tags;
    for (size_t i = first; i < m_notes.size(); ++i)
        tags.push_back(m_notes[i]->record.Tag);
    for (size_t i = first; i > 0; --i)
        tags.push_back(m_notes[i - 1]->record.Tag);
    bool lockedSeen = false;
    modForms::moveAll(m_program, tr("Transferring quillets to desktop ..."), tags, [this, &lockedSeen](qint32 tag) {
        const auto index = indexOf(tag);
        const bool locked = index && m_notes[*index]->locked;
        lockedSeen = lockedSeen || locked;
        if (!locked)
            toDesktop(tag);
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
    toDesktop(tag);
}
