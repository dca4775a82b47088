// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/TrayMenu.h"

#include "platform/TrayIcon.h"

#include <QMenu>

#include <array>

namespace
{

struct Entry
{
    const char *name;
    const char *caption;
    PanelCommand command;
};

constexpr std::array<Entry, 11> Entries{{
    {"mnuAbout", QT_TRANSLATE_NOOP("TrayMenu", "About Quillets"), PanelCommand::About},
    {"mnuShow", QT_TRANSLATE_NOOP("TrayMenu", "Show Menu"), PanelCommand::Show},
    {"mnuExit", QT_TRANSLATE_NOOP("TrayMenu", "Exit Program"), PanelCommand::Exit},
    {"mnuHelp", QT_TRANSLATE_NOOP("TrayMenu", "Help"), PanelCommand::Help},
    {"mnuAllNoteStack", QT_TRANSLATE_NOOP("TrayMenu", "All to NoteStack"), PanelCommand::AllToNoteStack},
    {"mnuAllDesktop", QT_TRANSLATE_NOOP("TrayMenu", "All to Desktop"), PanelCommand::AllToDesktop},
    {"mnuSave", QT_TRANSLATE_NOOP("TrayMenu", "Save"), PanelCommand::Save},
    {"mnuOptions", QT_TRANSLATE_NOOP("TrayMenu", "View Options"), PanelCommand::Options},
    {"mnuNotestack", QT_TRANSLATE_NOOP("TrayMenu", "View Notestack"), PanelCommand::NoteStack},
    {"mnuNew", QT_TRANSLATE_NOOP("TrayMenu", "New Quillet"), PanelCommand::New},
    {"mnuCancel", QT_TRANSLATE_NOOP("TrayMenu", "Cancel"), PanelCommand::None},
}};

} // namespace

TrayMenu::TrayMenu(const QIcon &icon, QWidget *panel) : QObject(panel), m_popup(new QMenu(panel))
{
    m_popup->setObjectName(QStringLiteral("mnuPopup"));
    for (const Entry &entry : Entries) {
        QAction *action = m_popup->addAction(tr(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this, [this, command = entry.command] { emit commanded(command); });
    }
    m_icon = new TrayIcon(icon, m_popup, this);
    connect(m_icon, &TrayIcon::doubleClicked, this, [this] { emit commanded(PanelCommand::New); });
}

void TrayMenu::setVisible(bool visible)
{
    m_icon->setVisible(visible);
}

void TrayMenu::setCount(int notes, const QString &news)
{
    const QString count = notes == 1 ? tr("Quillets\n1 note") : tr("Quillets\n%1 notes").arg(notes);
    m_icon->setTip(news.isEmpty() ? count : count + u'\n' + news);
}
