// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/LockOverlay.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace
{

constexpr auto OverlayOfLabel = "overlay";
constexpr qreal OverlayPoints = 8.5;

/// To a screen reader the label is a button: it can be pressed.
class OverlayAccess final : public QAccessibleWidget
{
public:
    OverlayAccess(QLabel *label, LockOverlay &overlay)
        : QAccessibleWidget(label, QAccessible::Button), m_overlay(overlay)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const auto &label = static_cast<const QLabel &>(*widget());
        return kind == QAccessible::Name ? label.text().simplified() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &name) override
    {
        if (name == pressAction())
            emit m_overlay.clicked();
    }

private:
    LockOverlay &m_overlay;
};

QAccessibleInterface *accessOf(const QString &, QObject *object)
{
    auto *label = qobject_cast<QLabel *>(object);
    auto *overlay = label != nullptr ? label->property(OverlayOfLabel).value<LockOverlay *>() : nullptr;
    return overlay != nullptr ? new OverlayAccess(label, *overlay) : nullptr;
}

} // namespace

void LockOverlay::make()
{
    m_frame = new QWidget(m_note);
    m_frame->setObjectName(QStringLiteral("fraPassword"));
    m_frame->setAutoFillBackground(true);
    m_label = new QLabel(m_frame);
    m_label->setProperty(OverlayOfLabel, QVariant::fromValue(this));
    QAccessible::installFactory(accessOf); // Once, however often it is said.
    m_label->setObjectName(QStringLiteral("lblPassword"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);
    m_label->setFocusPolicy(Qt::StrongFocus);
    m_label->setCursor(Qt::PointingHandCursor);
    m_label->setText(tr("\r\nThis Quillet is locked.\r\nPlease click here to proceed."));
    QFont font = m_label->font();
    font.setPointSizeF(OverlayPoints);
    m_label->setFont(font);
    m_label->installEventFilter(this);
}

void LockOverlay::dress()
{
    QPalette palette = m_frame->palette();
    palette.setColor(QPalette::Window, m_paper);
    palette.setColor(QPalette::WindowText, m_ink);
    m_frame->setPalette(palette);
    m_label->setPalette(palette);
    m_frame->setGeometry(m_rect);
    m_label->setGeometry(QRect(QPoint(0, 0), m_rect.size()));
}

void LockOverlay::setVisible(bool visible)
{
    if (m_frame == nullptr && !visible)
        return;
    if (m_frame == nullptr)
        make();
    dress();
    m_frame->setVisible(visible);
    m_frame->raise();
}

void LockOverlay::setGeometry(const QRect &rect)
{
    m_rect = rect;
    if (m_frame != nullptr)
        dress();
}

void LockOverlay::setInk(const QColor &ink, const QColor &paper)
{
    m_ink = ink;
    m_paper = paper;
    if (m_frame != nullptr)
        dress();
}

bool LockOverlay::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && m_label->rect().contains(mouse->position().toPoint()))
            emit clicked();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return false;
    emit clicked();
    return true;
}
