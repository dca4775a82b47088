// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackPage.h"

#include <QPainter>

namespace
{
constexpr int Outline = 1;
constexpr int BodySide = 2;
} // namespace

void StackPage::setInk(const NoteInk &ink)
{
    m_ink = ink;
    update();
}

QRect StackPage::titleRect() const
{
    return {Outline, Outline, width() - 2 * Outline, TitleHeight};
}

QRect StackPage::toolbarRect() const
{
    return {Outline, Outline + TitleHeight + 1, width() - 2 * Outline, ToolbarHeight};
}

QRect StackPage::coverRect() const
{
    const int top = toolbarRect().bottom() + 2;
    return {Outline, top, width() - 2 * Outline, qMax(0, height() - top - Outline)};
}

QRect StackPage::bodyRect() const
{
    return coverRect().adjusted(BodySide, 0, -BodySide, 0);
}

void StackPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_ink.paper);
    painter.fillRect(titleRect(), m_ink.titleStrip);
    painter.fillRect(QRect(0, titleRect().bottom() + 1, width(), 1), m_ink.titleLine);
    painter.fillRect(QRect(0, toolbarRect().bottom() + 1, width(), 1), m_ink.toolLine);
    for (const QRect &edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                              QRect(width() - 1, 0, 1, height())})
        painter.fillRect(edge, m_ink.outline);
}
