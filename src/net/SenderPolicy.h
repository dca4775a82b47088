// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNetworkSettings.h"

#include <QHostAddress>
#include <QObject>
#include <QSet>

#include <functional>

/// Who may send a note to this computer. It goes by the true address of a connection; what a packet claims is not
/// asked.
class SenderPolicy final : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(bool)>;

    using QObject::QObject;

    /// Holds from the next question on. Blocked senders that are no addresses block nobody.
    void setSettings(const clsNetworkSettings &settings);
    /// The hosts of the send book, asked for only while the book decides.
    void setBookHosts(std::function<QStringList()> hosts) { m_bookHosts = std::move(hosts); }

    /// Answers at once, or later where names of the book must be looked up; not at all when the context has gone.
    void ask(const QHostAddress &sender, QObject *context, const Answer &answer);

private:
    bool isRefused(const QHostAddress &sender) const;
    void askBook(const QHostAddress &sender, QObject *context, const Answer &answer);

    clsNetworkSettings m_settings;
    QSet<QHostAddress> m_blocked;
    std::function<QStringList()> m_bookHosts = [] { return QStringList(); };
};
