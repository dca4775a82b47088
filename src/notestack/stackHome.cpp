// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/stackHome.h"

#include "notes/commands/NoteAction.h"
#include "notes/commands/notePrinting.h"
#include "notes/modCreateNote.h"

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
constexpr NoteCommand Refused[] = {Email, Send, Settings, Password, Alarm, Move, Delete};

} // namespace

const HomeRules StackHome{
    .longMenu = LongMenu,
    .longMenuName = "mnuPopup2",
    .shortMenu = ShortMenu,
    .onlyWithPassword = false,
    .refusedWhenLocked = Refused,
    .refusedLocked = {QT_TRANSLATE_NOOP("NoteAction", "Sorry, this is a locked quillet."),
                      QT_TRANSLATE_NOOP("NoteAction", "Locked")},
    .checksMoves = false,
    .refusedMove = {},
    .lockedDeletion = {QT_TRANSLATE_NOOP("NoteAction", "You cannot delete a note that is locked"),
                       QT_TRANSLATE_NOOP("NoteAction", "Deletion Error")},
    .refusedDeletion = {QT_TRANSLATE_NOOP("NoteAction", "Authentication invalid.  Deletion failed."),
                        QT_TRANSLATE_NOOP("NoteAction", "Deletion Failed")},
    .captions = {QT_TRANSLATE_NOOP("noteDialogs", "Sending note '%1' - Quillets"),
                 QT_TRANSLATE_NOOP("noteDialogs", "E-mail note '%1' - Quillets")},
    .lineEnd = notePrinting::LineEnd::BeforeLimit,
    .move = modCreateNote::moveToDesktop,
};
