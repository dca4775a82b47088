// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/desktopHome.h"

#include "notes/commands/NoteAction.h"
#include "notes/commands/noteMoves.h"
#include "notes/commands/notePrinting.h"

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

/// What a locked note does not do; its menu offers none of it.
constexpr NoteCommand Refused[] = {Move, Settings, Password, Alarm, Send, Email};

} // namespace

const HomeRules DesktopHome{
    .longMenu = LongMenu,
    .longMenuName = "mnuPopupIco",
    .shortMenu = ShortMenu,
    .onlyWithPassword = true,
    .refusedWhenLocked = Refused,
    .refusedLocked = {},
    .checksMoves = true,
    .refusedMove = {QT_TRANSLATE_NOOP("NoteAction", "Invalid authentication.  Quillet minimization failed."),
                    QT_TRANSLATE_NOOP("NoteAction", "Minimization failed")},
    .lockedDeletion = {QT_TRANSLATE_NOOP("NoteAction", "You cannot delete a Quillet that is locked."),
                       QT_TRANSLATE_NOOP("NoteAction", "Deletion Error")},
    .refusedDeletion = {QT_TRANSLATE_NOOP("NoteAction", "Invalid authentication.  Quillet deletion failed."),
                        QT_TRANSLATE_NOOP("NoteAction", "Deletion failed")},
    .captions = {QT_TRANSLATE_NOOP("noteDialogs", "Send '%1' - Quillets"),
                 QT_TRANSLATE_NOOP("noteDialogs", "E-mail '%1' - Quillets")},
    .lineEnd = notePrinting::LineEnd::BehindLimit,
    .move =
        [](Program &program, const clsNoteProps &record, Lid lid) {
            noteMoves::settle(program, noteMoves::intoNoteStack(program, record, NoteCreateMode::Move, lid));
        },
};
