// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/DesktopActions.h"

#ifdef QUILLETS_HAS_DBUS
#include <QDBusConnection>
#endif

bool DesktopActions::publish()
{
#ifdef QUILLETS_HAS_DBUS
    QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() &&
           bus.registerObject(QStringLiteral("/org/quillets/Quillets"), this, QDBusConnection::ExportScriptableSlots) &&
           bus.registerService(QStringLiteral("org.quillets.Quillets"));
#else
    return false;
#endif
}

// The answer goes first: what is wanted may open a box and wait.
void DesktopActions::Activate(const QVariantMap &)
{
    QMetaObject::invokeMethod(this, &DesktopActions::activated, Qt::QueuedConnection);
}

void DesktopActions::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void DesktopActions::ActivateAction(const QString &action, const QVariantList &, const QVariantMap &)
{
    QMetaObject::invokeMethod(
        this, [this, action] { emit actionWanted(action); }, Qt::QueuedConnection);
}
