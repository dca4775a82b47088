// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Pictures.h"

#include <QAbstractButton>
#include <QTimer>

#include <chrono>

/// A small button that is only a picture, made smaller where it does not fit. A left press shows the pressed picture,
/// waits a moment while everything else goes on, and then commands; further presses meanwhile do nothing. The press is
/// dropped when a modal window has come in front of the button's by then. The command may delete the button's window.
class PictureButton final : public QAbstractButton
{
    Q_OBJECT

public:
    PictureButton(const Pictures &pictures, const QString &name, QWidget *parent);

    /// File names of the normal and the pressed picture.
    void setPictures(const QString &up, const QString &down);
    /// Shows the pressed picture also at rest, for a button that tells a state; pressing then shows the normal one.
    /// Its accessible description tells the state to those who do not see it.
    void setDown(bool down);
    void setInk(const QColor &ink);
    /// How long the pressed picture is shown before the command.
    void setPause(std::chrono::milliseconds pause);
    /// Commands when the mouse button is let go, without a pause; for a button that opens a menu.
    void setCommandsOnRelease(bool onRelease);
    /// Tooltip and accessible name.
    void setCaption(const QString &caption);

    QSize sizeHint() const override { return {16, 16}; }

signals:
    /// The left mouse button went down on the picture.
    void pressedDown();
    void commanded();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void beginPress();
    void finishPress();
    void command();

    const Pictures &m_pictures;
    QString m_up;
    QString m_down;
    QColor m_ink = Qt::black;
    std::chrono::milliseconds m_pause{200};
    bool m_pressed = false;
    bool m_downAtRest = false;
    bool m_onRelease = false;
};
