// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QKeySequence>
#include <QObject>

#include <vector>

class PortalKeys;

/// Keys that work whichever program has the focus, where the system lets a program have some: on X11, and in a Wayland
/// session where the desktop's portal gives some away.
class GlobalKeys final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit GlobalKeys(QObject *parent);
    ~GlobalKeys() override;

    static bool isSupported();
    /// One chord with Ctrl, Alt or the Windows key, of a key that can be had; or nothing.
    static bool canBe(const QKeySequence &keys);

    struct Wanted
    {
        QKeySequence keys;   ///< None where empty.
        QString description; ///< For a desktop that asks its user.
    };
    /// In the place of those before. Gives those that another program has, where that is known at once.
    QList<QKeySequence> grab(const QList<Wanted> &wanted);

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

signals:
    /// From the event loop; once for a key that is held down.
    void pressed(int index);
    /// The desktop was asked, and gives none.
    void refused();

private:
    struct Grabbed
    {
        quint8 keyCode;
        quint16 modifiers;
        int index;
    };

    bool grabOne(const QKeySequence &keys, int index);
    void release();
    void askPortal(const QList<Wanted> &wanted);

    PortalKeys *m_portal = nullptr; ///< Made when it is needed.
    std::vector<Grabbed> m_grabbed;
    quint8 m_down = 0;      ///< The key that is held.
    quint32 m_released = 0; ///< The moment of the last release, by the clock of the X server.
};
