// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// The logo of the panel: opens the about box, by the mouse or by the keyboard.
class PanelLogo final : public QLabel
{
    Q_OBJECT

public:
    static constexpr int Side = 64;

    PanelLogo(const QIcon &icon, QWidget *panel);

signals:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
