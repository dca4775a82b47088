// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/SizeGrip.h"
#include "shell/PanelLogo.h"
#include "shell/PanelRow.h"
#include "shell/ReceivedLine.h"
#include "shell/frmMenu.h"

namespace
{

constexpr int RowHeight = 30;
constexpr int RowReach = 10; ///< How far a row begins left of its picture and ends before the panel's edge.
constexpr int LogoSide = PanelLogo::Side;
constexpr int LogoGap = 10;
constexpr int GripSide = 16;

} // namespace

/// The column of pictures stands in the middle, the captions to the right of it, the logo to the left.
void frmMenu::ResizeForm()
{
    const QSize picture = m_rows.front()->pictureSize();
    const int pictureLeft = width() / 2 - picture.width() / 2;
    const int foot = m_receivedLine->isVisibleTo(this) ? m_receivedLine->sizeHint().height() : 0;
    const int rowHeight = qMin(RowHeight, (height() - foot) / static_cast<int>(Commands));
    int top = qMin((height() - rowHeight * static_cast<int>(Commands)) / 2,
                   height() - foot - rowHeight * static_cast<int>(Commands));
    for (PanelRow *row : m_rows) {
        const int left = pictureLeft - RowReach;
        row->layOut(QRect(left, top, width() - left - RowReach, rowHeight), pictureLeft);
        top += rowHeight;
    }
    layOutLogo(pictureLeft - RowReach);
    m_receivedLine->setGeometry(pictureLeft, height() - foot,
                                qMin(m_receivedLine->sizeHint().width(), width() - pictureLeft - GripSide), foot);
    m_grip->setGeometry(width() - GripSide, height() - GripSide, GripSide, GripSide);
}

void frmMenu::layOutLogo(int width)
{
    const int nameHeight = m_name->sizeHint().height();
    const int aboutHeight = m_about->sizeHint().height();
    int top = (height() - LogoSide - nameHeight - aboutHeight - LogoGap) / 2;
    m_logo->setGeometry((width - LogoSide) / 2, top, LogoSide, LogoSide);
    top += LogoSide + LogoGap;
    m_name->setGeometry(0, top, width, nameHeight);
    m_about->setGeometry(0, top + nameHeight, width, aboutHeight);
}

void frmMenu::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!isMinimized())
        ResizeForm();
}
