// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNetworkSettings.h"

#include <QObject>

#include <functional>
#include <vector>

class QFormLayout;
class QGroupBox;
class QWidget;

/// The groups of the options that edit the network settings, on a copy of them.
class NetworkGroups final : public QObject
{
    Q_OBJECT

public:
    explicit NetworkGroups(QWidget *dialog);

    QGroupBox *receiving() const { return m_receiving; }
    QGroupBox *mailServer() const { return m_mailServer; }
    void setSettings(const clsNetworkSettings &settings);
    const clsNetworkSettings &settings() const { return m_settings; }
    /// The built-in values; blocked senders stay.
    void setDefaults();

private:
    template <class Value>
    void addChoice(QFormLayout &rows, const char *name, const QString &caption, Value &field,
                   const QStringList &values);
    void addSwitch(QFormLayout &rows, const char *name, const QString &caption, bool &field);
    void addBlocked(QFormLayout &rows);
    void addPort(QFormLayout &rows);
    void addUser(QFormLayout &rows);

    clsNetworkSettings m_settings;
    std::vector<std::function<void()>> m_fill; ///< Each shows one field.
    QGroupBox *m_receiving;
    QGroupBox *m_mailServer;
};
