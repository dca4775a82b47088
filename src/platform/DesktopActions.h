// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// What the desktop may ask of the program that runs: the interface org.freedesktop.Application, under the program's
/// own name on the session bus. Menus of launchers and keys of the desktop use it.
class DesktopActions final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;

    /// False without a session bus, or when another program has the name; nothing is missing then.
    bool publish();

public slots: // NOLINT(readability-redundant-access-specifiers): called by name.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    /// Files are not opened; the program comes forward.
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &platformData);

signals:
    /// From the event loop, as all that follows.
    void activated();
    void actionWanted(const QString &name);
};
