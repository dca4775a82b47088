// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// A computer of the local network that has announced itself.
struct NearbyComputer
{
    QString name; ///< As it calls itself: a stranger's text.
    QString host;
    quint16 port = 0;

    bool operator==(const NearbyComputer &) const = default;
};

/// The computers of the local network on which the program runs and announces itself. Where the system has no means to
/// find them there are none, and nothing is said of it.
class Nearby : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks for others until it is told to stop.
    virtual void look() = 0;
    virtual void stopLooking() = 0;
    /// Tells others of this computer from now on; a port of 0 ends that.
    virtual void announce(const QString &name, quint16 port) = 0;

signals:
    /// Another one, while it is looked for them. The same one may be found more than once.
    void found(const NearbyComputer &computer);
};
