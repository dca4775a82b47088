// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/PanelCommand.h"

#include <QObject>

class QIcon;
class QMenu;
class QWidget;
class TrayIcon;

/// The tray icon that takes the panel's place while it is minimised, with the commands of the program in its menu.
class TrayMenu final : public QObject
{
    Q_OBJECT

public:
    TrayMenu(const QIcon &icon, QWidget *panel);

    void setVisible(bool visible);
    /// Tells how many notes there are, and below that what is new, if anything.
    void setCount(int notes, const QString &news);

signals:
    void commanded(PanelCommand command);

private:
    QMenu *m_popup; // mnuPopup
    TrayIcon *m_icon;
};
