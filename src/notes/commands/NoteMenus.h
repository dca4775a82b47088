// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/NoteAction.h"

#include <QObject>

class PictureButton;

/// The two menus of a window of notes: the long one of the menu picture, the short one of a text. They are made when
/// they are first opened, and told the state of the chosen note at each opening.
class NoteMenus final : public QObject
{
    Q_OBJECT

public:
    /// `drop` is where the long menu opens, in pixels below the top of the picture.
    NoteMenus(NoteHost &host, const HomeRules &home, PictureButton &picture, int drop);

    /// The long menu; closes it where it is open. Nothing where no note is chosen.
    void openLong();
    void openShort(QPoint globalPosition);

signals:
    void chosen(NoteCommand command);

private:
    NoteMenu *make(const QString &name, std::span<const MenuEntry> entries);
    void showState(const LiveNote &note);

    NoteHost &m_host;
    const HomeRules &m_home;
    PictureButton &m_picture;
    int m_drop;
    NoteMenu *m_long = nullptr;
    NoteMenu *m_short = nullptr; // mnuPopup
    bool m_open = false;
    bool m_pressedWhileOpen = false; ///< The press on the picture that closed the menu.
};
