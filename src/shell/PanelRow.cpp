// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/PanelRow.h"

#include "drawing/colours.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

constexpr int PictureSide = 20;
constexpr int CaptionGap = 12;
constexpr auto Pause = 100ms;
constexpr qreal CaptionPoints = 9.5;

} // namespace

PanelRow::PanelRow(const Pictures &pictures, const Names &names, const QString &caption, QWidget *panel)
    : QAbstractButton(panel), m_pictures(pictures), m_file(QLatin1String(names.file)), m_up(new QLabel(this)),
      m_down(new QLabel(this)), m_caption(new QLabel(caption, this))
{
    setAccessibleName(caption);
    setFocusPolicy(Qt::StrongFocus);
    m_up->setObjectName(QLatin1String(names.up));
    m_down->setObjectName(QLatin1String(names.down));
    m_down->hide();
    m_caption->setObjectName(QLatin1String(names.caption));
    QFont font = m_caption->font();
    font.setPointSizeF(CaptionPoints);
    m_caption->setFont(font);
    connect(this, &QAbstractButton::clicked, this, &PanelRow::beginPress);
    dress();
}

QSize PanelRow::pictureSize() const
{
    return {PictureSide, PictureSide};
}

void PanelRow::layOut(const QRect &row, int pictureLeft)
{
    setGeometry(row);
    const QRect picture(QPoint(pictureLeft - row.left(), (row.height() - PictureSide) / 2), pictureSize());
    m_up->setGeometry(picture);
    m_down->setGeometry(picture);
    const int captionLeft = picture.right() + 1 + CaptionGap;
    m_caption->setGeometry(captionLeft, 0, row.width() - captionLeft, row.height());
}

void PanelRow::dress()
{
    QColor ink = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    if (!isEnabled())
        ink.setAlphaF(0.5F);
    m_up->setPixmap(m_pictures.shape(m_file + QStringLiteral("up.gif"), ink, devicePixelRatioF()));
    m_down->setPixmap(m_pictures.shape(m_file + QStringLiteral("down.gif"), ink, devicePixelRatioF()));
}

void PanelRow::showPressed(bool pressed)
{
    m_pressed = pressed;
    m_up->setVisible(!pressed);
    m_down->setVisible(pressed);
    m_caption->setForegroundRole(pressed ? QPalette::Link : QPalette::WindowText);
    update();
}

void PanelRow::beginPress()
{
    if (m_pressed || !isEnabled())
        return;
    showPressed(true);
    emit pressBegan();
    QTimer::singleShot(Pause, this, [this] {
        const QPointer<PanelRow> self = this;
        emit commanded();
        if (self == nullptr)
            return;
        QTimer::singleShot(Pause, this, [this] {
            showPressed(false);
            emit pressEnded();
        });
    });
}

void PanelRow::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted() && isEnabled())
        click();
}

void PanelRow::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void PanelRow::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter || event->key() == Qt::Key_Space) && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void PanelRow::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}

void PanelRow::enterEvent(QEnterEvent *event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void PanelRow::leaveEvent(QEvent *event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void PanelRow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
        dress();
    QAbstractButton::changeEvent(event);
}

void PanelRow::paintEvent(QPaintEvent *)
{
    const bool hovered = underMouse() && isEnabled();
    if (!m_pressed && !hovered && !hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor wash = palette().color(QPalette::Highlight);
    wash.setAlphaF(m_pressed ? 0.30F : hovered ? 0.16F : 0.0F);
    painter.setBrush(wash);
    const QColor ring = colours::distinct(palette().color(QPalette::Highlight), palette().color(QPalette::Window),
                                          palette().color(QPalette::WindowText));
    painter.setPen(hasFocus() ? QPen(ring, 1) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}
