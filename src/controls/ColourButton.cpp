// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/ColourButton.h"

#include <QPainter>

namespace
{

constexpr int Width = 72;
constexpr int Inset = 5;
constexpr qreal Radius = 2;

} // namespace

ColourButton::ColourButton(const QString &name, const QString &accessibleName, QWidget *parent) : QPushButton(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourButton::setColour(const QColor &colour)
{
    m_colour = colour;
    setToolTip(colour.name());
    setAccessibleDescription(colour.name());
    update();
}

QSize ColourButton::sizeHint() const
{
    return {Width, QPushButton::sizeHint().height() + Inset};
}

void ColourButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_colour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), Radius, Radius);
}
