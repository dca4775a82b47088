// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QObject>
#include <QVariantMap>

#include <functional>

class QDBusObjectPath;

/// Keys for all programs in a Wayland session, where the desktop gives them away: by the interface GlobalShortcuts of
/// the desktop portal. The desktop asks its user, who may choose other keys than those wanted here.
class PortalKeys final : public QObject
{
    Q_OBJECT

public:
    struct Wanted
    {
        QString id;
        QString description; ///< Shown to the user.
        QKeySequence keys;   ///< None: this one is not wanted.
    };

    using QObject::QObject;
    ~PortalKeys() override;

    /// The session has a portal; which of its interfaces there are is seen when keys are wanted.
    static bool isThere();
    /// In the place of those before. Answers come from the event loop.
    void want(const QList<Wanted> &wanted);

signals:
    void pressed(const QString &id);
    /// The desktop, or its user, gives none.
    void refused();

private slots: // NOLINT(readability-redundant-access-specifiers): called by name.
    void answered(uint code, const QVariantMap &results);
    void activated(const QDBusObjectPath &session, const QString &id, qulonglong moment, const QVariantMap &options);

private:
    using Next = std::function<void(const QVariantMap &results)>;

    void request(const QString &method, QVariantList arguments, QVariantMap options, Next next);
    void bind(const QString &session);
    void forgetRequest();
    void closeSession();
    void refuse();

    QList<Wanted> m_wanted;
    QString m_session; ///< Empty: none.
    QString m_request; ///< The one that is under way.
    Next m_next;
    int m_count = 0;
};
