// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/PanelMenu.h"

namespace
{

struct Entry
{
    const char *name;
    const char *caption;
    const char *keys; ///< Shown beside the caption, if any; they are ProgramKeys'.
    PanelCommand command;
};

constexpr Entry Entries[] = {
    {"mnuFind", QT_TRANSLATE_NOOP("PanelMenu", "&Find in All Notes"), "Ctrl+F", PanelCommand::Find},
    {"mnuShowOrHide", QT_TRANSLATE_NOOP("PanelMenu", "&Show or Hide All Notes"), "Ctrl+Shift+H",
     PanelCommand::ShowOrHideAll},
    {"mnuRestore", QT_TRANSLATE_NOOP("PanelMenu", "&Restore Notes..."), "", PanelCommand::Restore},
    {"mnuExport", QT_TRANSLATE_NOOP("PanelMenu", "&Export Notes..."), "", PanelCommand::Export},
    {"mnuImport", QT_TRANSLATE_NOOP("PanelMenu", "&Import Notes..."), "", PanelCommand::Import},
};

} // namespace

PanelMenu::PanelMenu(QWidget *panel) : QMenu(panel)
{
    setObjectName(QStringLiteral("mnuPanel"));
    setAttribute(Qt::WA_DeleteOnClose);
    for (const Entry &entry : Entries) {
        const QLatin1String keys(entry.keys);
        QAction *action = addAction(keys.isEmpty() ? tr(entry.caption) : tr(entry.caption) + u'\t' + keys);
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this, [this, command = entry.command] { emit commanded(command); });
    }
}
