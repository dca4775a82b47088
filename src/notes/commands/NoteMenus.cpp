// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/NoteMenus.h"

#include "drawing/PictureButton.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteHost.h"
#include "security/noteLocks.h"

using enum NoteCommand;

NoteMenus::NoteMenus(NoteHost &host, const HomeRules &home, PictureButton &picture, int drop)
    : QObject(&picture), m_host(host), m_home(home), m_picture(picture), m_drop(drop)
{
    // The press that closes the menu comes to the picture before its command does, and finds the menu open.
    connect(&picture, &PictureButton::pressedDown, this, [this] { m_pressedWhileOpen = m_open; });
    connect(&picture, &PictureButton::commanded, this, &NoteMenus::openLong);
}

NoteMenu *NoteMenus::make(const QString &name, std::span<const MenuEntry> entries)
{
    auto *menu = new NoteMenu(name, entries, &m_host.hostWindow());
    connect(menu, &NoteMenu::chosen, this, [this](NoteCommand command) {
        m_open = false;
        emit chosen(command);
    });
    return menu;
}

void NoteMenus::openLong()
{
    LiveNote *note = m_host.chosen();
    if (note != nullptr)
        note->body.commit();
    if (std::exchange(m_pressedWhileOpen, false) || m_open || note == nullptr)
        return;
    if (m_long == nullptr) {
        m_long = make(QLatin1String(m_home.longMenuName), m_home.longMenu);
        connect(
            m_long, &QMenu::aboutToHide, this, [this] { m_open = false; }, Qt::QueuedConnection);
    }
    showState(*note);
    m_open = true;
    m_long->popup(m_picture.mapToGlobal(QPoint(0, m_drop)));
}

void NoteMenus::showState(const LiveNote &note)
{
    m_long->enableAll();
    m_long->setChecked(Toolbar, note.record.ToolBarOn);
    m_long->setChecked(Alarm, note.record.AlarmOn);
    m_long->setChecked(Password, note.record.PwdOn);
    m_long->setChecked(Scrolled, note.record.FrmScrolledOn);
    m_long->setChecked(OnTop, note.record.OnTopOn);
    m_long->setChecked(Locked, note.locked);
    m_long->setEnabled(Locked, note.record.PwdOn || !m_home.onlyWithPassword);
    if (!note.locked)
        return;
    m_long->disableAll();
    for (const NoteCommand command : {Scrolled, OnTop, Locked})
        m_long->setEnabled(command, true);
}

void NoteMenus::openShort(QPoint globalPosition)
{
    const LiveNote *note = m_host.chosen();
    if (note == nullptr)
        return;
    if (m_short == nullptr)
        m_short = make(QStringLiteral("mnuPopup"), m_home.shortMenu);
    m_short->setEnabled(Paste, !noteLocks::isReadOnly(note->record));
    m_short->popup(globalPosition);
}
