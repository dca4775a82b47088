// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/TrayIcon.h"

#include <QApplication>
#include <QMenu>

TrayIcon::TrayIcon(const QIcon &icon, QMenu *menu, QObject *parent) : QObject(parent), m_icon(icon)
{
    m_icon.setObjectName(QStringLiteral("trayIcon"));
    m_icon.setContextMenu(menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::activated);
}

bool TrayIcon::isThere()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayIcon::setVisible(bool visible)
{
    m_icon.setVisible(visible);
}

void TrayIcon::setTip(const QString &tip)
{
    m_icon.setToolTip(tip);
}

/// Some trays send a click and then a double click, others two clicks and never a double click.
void TrayIcon::activated(QSystemTrayIcon::ActivationReason reason)
{
    const bool second = reason == QSystemTrayIcon::Trigger && !m_secondClick.hasExpired();
    if (reason == QSystemTrayIcon::Trigger)
        m_secondClick.setRemainingTime(second ? 0 : QApplication::doubleClickInterval());
    if (!second && reason != QSystemTrayIcon::DoubleClick)
        return;
    if (!m_told.hasExpired())
        return;
    m_told.setRemainingTime(QApplication::doubleClickInterval());
    emit doubleClicked();
}
