// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class Pictures;
class WindowDrag;

/// The grip in the lower right corner of a window, by which it is sized. Its parent places it; what it drags, and how
/// small that may become, is the drag's.
class SizeGrip final : public QLabel
{
    Q_OBJECT

public:
    /// Both outlive the grip.
    SizeGrip(const Pictures &pictures, WindowDrag &drag, QWidget *parent);

    void setInk(const QColor &ink);

signals:
    /// A drag that changed the size has ended.
    void sized();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    const Pictures &m_pictures;
    WindowDrag &m_drag;
};
