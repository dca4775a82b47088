// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QLocalSocket;

/// Finds out whether the system bus answers, without waiting for it. QDBusConnection does wait, for half a minute and
/// with everything that goes over any bus, where one takes connections and says nothing.
class BusProbe final : public QObject
{
    Q_OBJECT

public:
    explicit BusProbe(QObject *parent = nullptr);

    /// One question at a time: while one is under way its answer is that of all.
    void ask();

signals:
    /// Never where there is no bus on this computer, or a silent one.
    void answered();

private:
    void greet();
    void hear();

    QLocalSocket *m_socket;
};
