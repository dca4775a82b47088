// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/NoteLayout.h"
#include "platform/WindowDrag.h"

#include <QObject>

#include <array>

class ResizeHandle;

/// The thin invisible strips along the edges and corners of a note by which it is sized.
class ResizeHandles final : public QObject
{
    Q_OBJECT

public:
    ResizeHandles(QWidget *note, WindowDrag &drag);

    void layOut(const NoteLayout &layout);
    /// A rolled-up note can only be made wider or narrower; a locked one not be sized at all.
    void setMode(bool rolled, bool locked);
    void raise();

signals:
    void sized();

private:
    ResizeHandle *make(const QString &name, WindowDrag::HitTest held);

    QWidget *m_note;
    WindowDrag &m_drag;
    std::array<ResizeHandle *, NoteLayout::CornerHandles> m_corners{}; // lblResize
    std::array<ResizeHandle *, NoteLayout::EdgeHandles> m_sides{};     // lblResizeh
    std::array<ResizeHandle *, NoteLayout::EdgeHandles> m_topEnds{};   // lblResizev
};
