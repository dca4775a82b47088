// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowDrag.h"

#include <QTimer>

#include <optional>

class LiveNote;
class Program;
class QKeyEvent;

/// Place, size and rolling of a note's window, kept in step with its record. What happens to the window before
/// setReady and after close, or while notes are loaded, is not the user's doing and is not stored.
class NotePlace final : public QObject
{
    Q_OBJECT

public:
    NotePlace(Program &program, QWidget &window, LiveNote &note);

    WindowDrag &drag() { return m_drag; }
    void setReady() { m_ready = true; }
    void close();
    /// Shown, not loading, not closing.
    bool isReady() const;

    void placeAt(const QRect &geometry);
    /// Stores the place where a note without one has opened, so that it opens there again.
    void keepFirstPlace();
    /// Makes the window shorter by the toolbar's share; the record stays.
    void removeToolBar();
    /// The window has become smaller than a note can be, and was told to grow back.
    bool growBack();
    /// The window was moved or sized, perhaps by the user.
    void changed();
    /// Takes over where the window system has put the window.
    void settle();
    void endMove();
    /// Ctrl and an arrow move the window, Shift and an arrow size it; Escape puts it back where it was before the first
    /// of them. False for a key that does neither.
    bool takeKey(const QKeyEvent &key);
    /// What the keys have done so far is kept.
    void endKeys() { m_beforeKeys.reset(); }
    /// Rolls the window up or down; while a note is being dressed its stored heights stay as they are.
    void roll();
    void toggleToolbar();
    void storePlace();
    void storeSize();
    /// Stores the place now when it was to be stored soon.
    void storeSettling();

private:
    int heightAfterToggle(int before);
    void step(WindowDrag::HitTest held, QPoint by);

    Program &m_program;
    QWidget &m_window;
    LiveNote &m_note;
    WindowDrag m_drag;
    QTimer m_settling; ///< Waits until a window that is being moved has come to rest.
    /// A note too low to give all of the toolbar's height gets back what it gave.
    struct
    {
        int from = 0;
        int to = -1;
    } m_lowered;
    std::optional<QRect> m_beforeKeys;
    bool m_ready = false;
    bool m_closing = false;
};
