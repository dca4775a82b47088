// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Pictures.h"

#include <QAbstractButton>

class QLabel;

/// One command of the main panel: a picture with a pressed twin and a caption. A press shows the pressed picture for a
/// moment, asks for the command, and shows the normal one again a moment after it is done.
class PanelRow final : public QAbstractButton
{
    Q_OBJECT

public:
    /// Object names of the two pictures and of the caption, and what the picture files begin with.
    struct Names
    {
        const char *up;
        const char *down;
        const char *caption;
        const char *file;
    };

    PanelRow(const Pictures &pictures, const Names &names, const QString &caption, QWidget *panel);

    /// Where the picture stands inside the row; the caption is beside it.
    void layOut(const QRect &row, int pictureLeft);
    QSize pictureSize() const;

signals:
    /// A press began; whoever listens may refuse it.
    void pressBegan();
    void commanded();
    void pressEnded();

public slots:
    void beginPress();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void dress();
    void showPressed(bool pressed);

    const Pictures &m_pictures;
    QString m_file;
    QLabel *m_up;
    QLabel *m_down;
    QLabel *m_caption;
    bool m_pressed = false;
};
