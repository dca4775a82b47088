// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QKeySequence>
#include <QObject>

#include <vector>

/// Keys that work whichever program has the focus, where the system lets a program have some: on X11. In a Wayland
/// session they are the desktop's own to give away.
class GlobalKeys final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit GlobalKeys(QObject *parent);
    ~GlobalKeys() override;

    static bool isSupported();
    /// One chord with Ctrl, Alt or the Windows key, of a key that can be had; or nothing.
    static bool canBe(const QKeySequence &keys);

    /// In the place of those before; empty ones are none. Gives those that another program has.
    QList<QKeySequence> grab(const QList<QKeySequence> &keys);

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

signals:
    /// From the event loop; once for a key that is held down.
    void pressed(int index);

private:
    struct Grabbed
    {
        quint8 keyCode;
        quint16 modifiers;
        int index;
    };

    bool grabOne(const QKeySequence &keys, int index);
    void release();

    std::vector<Grabbed> m_grabbed;
    quint8 m_down = 0;      ///< The key that is held.
    quint32 m_released = 0; ///< The moment of the last release, by the clock of the X server.
};
