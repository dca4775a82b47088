// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteBody.h"
#include "notes/commands/NoteMenu.h"
#include "notes/commands/noteClipboard.h"
#include "notes/commands/noteDialogs.h"
#include "notes/commands/noteDressing.h"
#include "notes/commands/noteEditing.h"
#include "notes/commands/notePrinting.h"
#include "notes/commands/noteTitles.h"
#include "notes/frmNote.h"
#include "notes/modCreateNote.h"
#include "notes/parts/NoteTitle.h"
#include "drawing/textShortening.h"
#include "platform/Prompts.h"
#include "platform/windowStacking.h"
#include "security/noteLocks.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modHelp.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace
{

using Kind = MenuEntry::Kind;
using enum NoteCommand;

constexpr MenuEntry ShortMenu[] = {
    {"mnuNoteStack0", QT_TRANSLATE_NOOP("NoteMenu", "To NoteStack"), Kind::Item, Move},
    {"mnuPrint0", QT_TRANSLATE_NOOP("NoteMenu", "Print"), Kind::Item, Print},
    {"mnuDash4", nullptr, Kind::Separator},
    {"mnuCopy", QT_TRANSLATE_NOOP("NoteMenu", "Copy"), Kind::Item, Copy},
    {"mnuPaste", QT_TRANSLATE_NOOP("NoteMenu", "Paste"), Kind::Item, Paste},
};

constexpr MenuEntry LongMenu[] = {
    {"mnuNoteStack1", QT_TRANSLATE_NOOP("NoteMenu", "To NoteStack"), Kind::Item, Move},
    {"mnuPrint1", QT_TRANSLATE_NOOP("NoteMenu", "Print"), Kind::Item, Print},
    {"mnuDash0", nullptr, Kind::Separator},
    {"mnuTitle", QT_TRANSLATE_NOOP("NoteMenu", "Title"), Kind::Item, Title},
    {"mnuDash3", nullptr, Kind::Separator},
    {"mnuProps", QT_TRANSLATE_NOOP("NoteMenu", "Properties"), Kind::Submenu},
    {"mnuPassword", QT_TRANSLATE_NOOP("NoteMenu", "Password"), Kind::Check, Password, 1},
    {"mnuAlarm", QT_TRANSLATE_NOOP("NoteMenu", "Alarm"), Kind::Check, Alarm, 1},
    {"mnuToolBarOn", QT_TRANSLATE_NOOP("NoteMenu", "Toolbar"), Kind::Check, Toolbar, 1},
    {"mnuScrolled", QT_TRANSLATE_NOOP("NoteMenu", "Scrolled"), Kind::Check, Scrolled, 1},
    {"mnuOnTop", QT_TRANSLATE_NOOP("NoteMenu", "On Top"), Kind::Check, OnTop, 1},
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

} // namespace

NoteMenu *frmNote::makeMenu(const QString &name, std::span<const MenuEntry> entries)
{
    auto *menu = new NoteMenu(name, entries, this);
    connect(menu, &NoteMenu::chosen, this, &frmNote::run);
    for (const NoteCommand command : {NoteCommand::Send, NoteCommand::Email})
        menu->setUnavailable(command, tr("Not in this version yet."));
    return menu;
}

void frmNote::menuCommanded()
{
    m_body->commit();
    if (std::exchange(m_pressedWhileOpen, false) || m_menuOpen)
        return;
    if (m_noteMenu == nullptr) {
        m_noteMenu = makeMenu(QStringLiteral("mnuPopupIco"), LongMenu);
        // The press that closes the menu comes to the picture before this does, and finds the menu open.
        connect(
            m_noteMenu, &QMenu::aboutToHide, this, [this] { m_menuOpen = false; }, Qt::QueuedConnection);
    }
    showMenuState();
    m_menuOpen = true;
    m_noteMenu->popup(m_menu->mapToGlobal(QPoint(0, Twips::design(NoteLayout::MenuDrop))));
}

void frmNote::showMenuState()
{
    m_noteMenu->enableAll();
    m_noteMenu->setChecked(Toolbar, m_record.ToolBarOn);
    m_noteMenu->setChecked(Alarm, m_record.AlarmOn);
    m_noteMenu->setChecked(Password, m_record.PwdOn);
    m_noteMenu->setChecked(Scrolled, m_record.FrmScrolledOn);
    m_noteMenu->setChecked(OnTop, m_record.OnTopOn);
    m_noteMenu->setChecked(Locked, m_locked);
    m_noteMenu->setEnabled(Locked, m_record.PwdOn);
    if (!m_locked)
        return;
    m_noteMenu->disableAll();
    for (const NoteCommand command : {Scrolled, OnTop, Locked})
        m_noteMenu->setEnabled(command, true);
}

void frmNote::openShortMenu(QPoint globalPosition)
{
    if (m_shortMenu == nullptr)
        m_shortMenu = makeMenu(QStringLiteral("mnuPopup"), ShortMenu);
    m_shortMenu->setEnabled(Paste, !noteLocks::isReadOnly(m_record));
    m_shortMenu->popup(globalPosition);
}

void frmNote::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        menuCommanded();
}

void frmNote::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_F2)
        SetFocusToTitleBar();
    else if (key == Qt::Key_F1)
        run(Help);
    else if (key == Qt::Key_F6)
        modForms::activateNext(m_program, *this);
    else if (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        menuCommanded();
    else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_locked)
        unlock();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        beginTextEditing();
    else
        QWidget::keyPressEvent(event);
}

void frmNote::commanded(NoteToolbar::Command command)
{
    constexpr std::array Commands{Help, Settings, Email, Send, Alarm, Password};
    run(Commands[static_cast<size_t>(command)]);
}

void frmNote::run(NoteCommand command)
{
    m_menuOpen = false;
    switch (command) {
    case Move:
        exitCommanded();
        break;
    case Print:
        print();
        break;
    case Title:
        SetFocusToTitleBar();
        break;
    case Toolbar:
        ToggleToolbar();
        break;
    case Scrolled:
        scrollStep();
        break;
    case OnTop:
        toggleOnTop();
        break;
    case Locked:
        m_locked ? unlock() : lockform();
        break;
    case Copy:
        if (!m_locked)
            noteClipboard::copy(m_record.Data);
        break;
    case Paste:
        paste();
        break;
    case Delete:
        deleteNote();
        break;
    case Help:
        modHelp::ShowHelp(m_program);
        break;
    case Password:
    case Alarm:
    case Settings:
        openDialog(command);
        break;
    case Send:
    case Email:
    case None:
        break;
    }
}

void frmNote::openDialog(NoteCommand command)
{
    const QPointer<frmNote> self = this;
    const QString failure = command == Settings ? tr("Access to Settings failed.")
                            : command == Alarm  ? tr("Access to Alarm functions failed.")
                                                : tr("Access to Password functions failed.");
    commitEditing();
    if (m_locked || !noteLocks::checkAccess(m_program, m_record, failure, this) || self == nullptr || isUnloaded())
        return;
    if (command == Settings)
        noteDialogs::openSettings(m_program, m_record.Tag, this);
    else if (command == Alarm)
        noteDialogs::openAlarm(m_program, m_record.Tag, this);
    else
        noteDialogs::openPassword(m_program, m_record.Tag, this);
}

void frmNote::toggleOnTop()
{
    m_record.OnTopOn = !m_record.OnTopOn;
    windowStacking::SetWindowOnTop(*this, m_record.OnTopOn);
    markChanged();
}

void frmNote::paste()
{
    if (!m_locked)
        noteEditing::paste(m_record, *m_body);
}

void frmNote::print()
{
    if (m_locked)
        return;
    m_body->commit();
    const QFont font = noteDressing::textFont(m_record, this->font());
    notePrinting::printSheet(m_program,
                             {m_title->shownTitle(), m_title->label().font().family(),
                              notePrinting::SpliceStringToPrint(m_record.Data, font, m_program.twips.perPixel()),
                              m_record.DateCreated, font},
                             this);
}

void frmNote::exitCommanded()
{
    const QPointer<frmNote> self = this;
    const noteLocks::Refusal refusal{tr("Invalid authentication.  Quillet minimization failed."),
                                     tr("Minimization failed")};
    if (!m_locked && noteLocks::checkReadOnly(m_program, m_record, noteLocks::readOnlyDescription(), refusal, this) &&
        self != nullptr && !isUnloaded())
        ToTheNoteStack();
}

void frmNote::ToTheNoteStack()
{
    commitEditing();
    Destroy();
    const clsNoteProps record = m_record;
    const bool locked = m_locked;
    unload();
    modCreateNote::moveNote(m_program, record, true, locked);
}

void frmNote::deleteNote()
{
    const QPointer<frmNote> self = this;
    if (!noteTitles::confirmDeletion(m_program, m_record, this) || self == nullptr || isUnloaded())
        return;
    if (m_locked) {
        m_program.prompts().tell(
            {tr("You cannot delete a Quillet that is locked."), tr("Deletion Error"), Message::Icon::Critical}, this);
        return;
    }
    const noteLocks::Refusal refusal{tr("Invalid authentication.  Quillet deletion failed."), tr("Deletion failed")};
    if (noteLocks::checkReadOnly(m_program, m_record, noteLocks::readOnlyDescription(), refusal, this) &&
        self != nullptr && !isUnloaded())
        RemoveFromDesktop();
}

void frmNote::unlock()
{
    const QPointer<frmNote> self = this;
    if (noteLocks::checkUnlocking(m_program, m_record, noteTitles::promptTitle(m_record, 0), this) && self != nullptr &&
        !isUnloaded())
        ShowLockLayer(false);
}
