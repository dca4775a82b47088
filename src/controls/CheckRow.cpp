// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/CheckRow.h"

#include "drawing/colours.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr qreal MarkRadius = 3;

class FocusMark final : public QWidget
{
public:
    explicit FocusMark(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // Pages of tabs are painted in the colour of buttons.
        const QPalette &is = palette();
        const QColor ink = is.color(QPalette::WindowText);
        const QColor mark = colours::distinct(is.color(QPalette::Highlight), is.color(QPalette::Window), ink);
        painter.setPen(colours::distinct(mark, is.color(QPalette::Button), ink));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), MarkRadius, MarkRadius);
    }
};

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

CheckRow::CheckRow(const QString &name, const QString &caption, QWidget *parent)
    : QWidget(parent), m_box(new QCheckBox(this)), m_caption(new QLabel(caption, this)), m_mark(new FocusMark(parent))
{
    m_box->setObjectName(QStringLiteral("chk") + name);
    m_box->setAccessibleName(withoutMnemonic(caption));
    m_box->installEventFilter(this);
    m_caption->setObjectName(QStringLiteral("lbl") + name);
    m_caption->setBuddy(m_box);
    m_caption->installEventFilter(this);
    m_mark->setObjectName(QStringLiteral("sha") + name);
    setFocusProxy(m_box);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, MarkRoom, MarkRoom, MarkRoom);
    layout->setSpacing(MarkRoom + 2);
    layout->addWidget(m_box);
    layout->addWidget(m_caption);
}

void CheckRow::explain(const QString &text)
{
    setToolTip(text);
    m_box->setAccessibleDescription(text);
}

bool CheckRow::event(QEvent *event)
{
    // A layout may give the row another parent than it was made with.
    if (event->type() == QEvent::ParentChange)
        m_mark->setParent(parentWidget());
    return QWidget::event(event);
}

bool CheckRow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_box && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        m_mark->setVisible(event->type() == QEvent::FocusIn);
    if (watched == m_caption && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton && m_caption->rect().contains(mouse->position().toPoint()))
            captionClicked();
    }
    return QWidget::eventFilter(watched, event);
}

void CheckRow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    placeMark();
}

void CheckRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeMark();
}

void CheckRow::placeMark()
{
    m_mark->setGeometry(geometry().adjusted(-MarkRoom, 0, 0, 0));
}

void CheckRow::captionClicked()
{
    m_box->setFocus(Qt::MouseFocusReason);
    if (m_box->checkState() != Qt::PartiallyChecked)
        m_box->click();
}
