// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include <span>
#include <vector>

/// What can be commanded of one note, wherever it lives.
enum class NoteCommand
{
    None, ///< Of separators and submenus.
    Move, ///< To the NoteStack, or from there to the desktop.
    Print,
    Title,
    Password,
    Alarm,
    Toolbar,
    Scrolled,
    OnTop,
    Locked,
    Settings,
    Send,
    Email,
    Delete,
    Help,
    Copy,
    Paste,
    LargerFont,
    SmallerFont,
    UsualFont,
    FindNext
};

/// One row of a menu's table.
struct MenuEntry
{
    enum class Kind
    {
        Item,
        Check,
        Separator,
        Submenu
    };

    const char *name;    ///< Object name.
    const char *caption; ///< To be translated in the context "NoteMenu"; null for separators.
    Kind kind = Kind::Item;
    NoteCommand command = NoteCommand::None;
    int depth = 0; ///< 1 for the entries of the submenu before them.
};

/// A note's menu, made from a table when it is first opened. It holds no state of the note: its owner says before each
/// opening what is enabled and checked.
class NoteMenu final : public QMenu
{
    Q_OBJECT

public:
    NoteMenu(const QString &name, std::span<const MenuEntry> entries, QWidget *owner);

    void setEnabled(NoteCommand command, bool enabled);
    void setChecked(NoteCommand command, bool checked);
    void enableAll();
    void disableAll();

signals:
    void chosen(NoteCommand command);

private:
    struct Item
    {
        NoteCommand command;
        QAction *action;
    };

    QAction *addEntry(QMenu &menu, const MenuEntry &entry);
    Item *find(NoteCommand command);

    std::vector<Item> m_items;
};
