// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/PanelLogo.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>

PanelLogo::PanelLogo(const QIcon &icon, QWidget *panel) : QLabel(panel)
{
    setObjectName(QStringLiteral("imgQuilletsLogo"));
    setAccessibleName(tr("About Quillets"));
    setPixmap(icon.pixmap(QSize(Side, Side), devicePixelRatioF()));
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::TabFocus);
}

void PanelLogo::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void PanelLogo::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit pressed();
}

void PanelLogo::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit pressed();
    else
        QLabel::keyPressEvent(event);
}

void PanelLogo::focusInEvent(QFocusEvent *event)
{
    setFrameShape(QFrame::StyledPanel);
    QLabel::focusInEvent(event);
}

void PanelLogo::focusOutEvent(QFocusEvent *event)
{
    setFrameShape(QFrame::NoFrame);
    QLabel::focusOutEvent(event);
}
