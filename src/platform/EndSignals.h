// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// Turns the signals by which a system asks a program to end (SIGTERM, SIGHUP, SIGINT) into a Qt signal on the thread
/// of the windows. Does nothing where the system has no such signals. One object at a time.
class EndSignals final : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;

signals:
    void endRequested();

private:
    int m_readEnd = -1;
};
