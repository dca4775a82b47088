// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/NoteMenu.h"

NoteMenu::NoteMenu(const QString &name, std::span<const MenuEntry> entries, QWidget *owner) : QMenu(owner)
{
    setObjectName(name);
    setToolTipsVisible(true);
    QMenu *submenu = this;
    for (const MenuEntry &entry : entries) {
        QMenu &menu = entry.depth == 0 ? *this : *submenu;
        if (entry.kind != MenuEntry::Kind::Submenu) {
            addEntry(menu, entry);
            continue;
        }
        submenu = addMenu(tr(entry.caption));
        submenu->setObjectName(QLatin1String(entry.name));
        submenu->menuAction()->setObjectName(QLatin1String(entry.name));
        submenu->setToolTipsVisible(true);
    }
}

QAction *NoteMenu::addEntry(QMenu &menu, const MenuEntry &entry)
{
    QAction *action =
        entry.kind == MenuEntry::Kind::Separator ? menu.addSeparator() : menu.addAction(tr(entry.caption));
    action->setObjectName(QLatin1String(entry.name));
    if (entry.kind == MenuEntry::Kind::Separator)
        return action;
    action->setCheckable(entry.kind == MenuEntry::Kind::Check);
    const NoteCommand command = entry.command;
    connect(action, &QAction::triggered, this, [this, command] { emit chosen(command); });
    m_items.push_back({command, action});
    return action;
}

NoteMenu::Item *NoteMenu::find(NoteCommand command)
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [command](const Item &item) { return item.command == command; });
    return found == m_items.end() ? nullptr : &*found;
}

void NoteMenu::setEnabled(NoteCommand command, bool enabled)
{
    if (Item *item = find(command))
        item->action->setEnabled(enabled);
}

void NoteMenu::setChecked(NoteCommand command, bool checked)
{
    if (Item *item = find(command))
        item->action->setChecked(checked);
}

void NoteMenu::enableAll()
{
    for (const Item &item : m_items)
        item.action->setEnabled(true);
}

void NoteMenu::disableAll()
{
    for (const Item &item : m_items)
        item.action->setEnabled(false);
}
