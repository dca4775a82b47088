// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QSystemTrayIcon>

class QMenu;

/// The program's icon in the notification area. Trays differ in what they tell of a double click; this tells it once
/// for all of them.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    /// The menu opens at a right click.
    TrayIcon(const QIcon &icon, QMenu *menu, QObject *parent);

    /// True where the desktop has a tray now.
    static bool isThere();
    /// Without a tray it is shown as soon as one comes.
    void setVisible(bool visible);
    bool isVisible() const { return m_icon.isVisible(); }
    void setTip(const QString &tip);

signals:
    void doubleClicked();

private:
    void activated(QSystemTrayIcon::ActivationReason reason);

    QSystemTrayIcon m_icon;
    QDeadlineTimer m_secondClick; ///< Runs while another click makes a double click.
    QDeadlineTimer m_told;        ///< Runs while the same double click may be told once more.
};
