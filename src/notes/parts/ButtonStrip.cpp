// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/ButtonStrip.h"

#include "drawing/toolTips.h"

#include <QMouseEvent>

namespace
{
constexpr qsizetype ShortestStatus = 8;
constexpr qsizetype LongestStatus = 200;
} // namespace

ButtonStrip::ButtonStrip(const Pictures &pictures, const QString &name, std::span<const Button> buttons,
                         qreal statusPoints, QWidget *parent)
    : QWidget(parent), m_edit(new QLabel(this))
{
    setObjectName(name);
    for (const Button &row : buttons) {
        auto *button = new PictureButton(pictures, QLatin1String(row.name), this);
        button->setPictures(QLatin1String(row.up), QLatin1String(row.down));
        button->setCaption(tr(row.caption));
        const auto index = static_cast<int>(m_buttons.size());
        connect(button, &PictureButton::commanded, this, [this, index] { emit commanded(index); });
        m_buttons.push_back(button);
    }
    m_edit->setObjectName(QStringLiteral("lblEdit"));
    m_edit->setTextFormat(Qt::PlainText);
    m_edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = m_edit->font();
    font.setPointSizeF(statusPoints);
    m_edit->setFont(font);
}

void ButtonStrip::setInk(const QColor &ink, const QColor &faintInk)
{
    for (PictureButton *button : m_buttons)
        button->setInk(ink);
    QPalette palette = m_edit->palette();
    palette.setColor(QPalette::WindowText, faintInk);
    m_edit->setPalette(palette);
}

void ButtonStrip::setPause(std::chrono::milliseconds pause)
{
    for (PictureButton *button : m_buttons)
        button->setPause(pause);
}

void ButtonStrip::setStatus(const QString &status)
{
    m_status = status.left(LongestStatus);
    showFitting();
}

void ButtonStrip::placeStatus(const QRect &place)
{
    m_edit->setGeometry(place);
    m_edit->setVisible(!place.isEmpty());
    showFitting();
}

void ButtonStrip::showFitting()
{
    QString text = m_status;
    while (!text.isEmpty() && m_edit->fontMetrics().horizontalAdvance(text) > m_edit->width())
        text.truncate(qMax(qsizetype(0), text.lastIndexOf(QLatin1Char(' '))));
    const bool tellsSomething = text.size() >= ShortestStatus || text == m_status;
    m_edit->setText(tellsSomething ? text : QString());
    m_edit->setToolTip(toolTips::plain(m_status));
}

void ButtonStrip::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    emit clickedElsewhere();
}
