// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/MarkedCheckBox.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr int MarkDistance = 3;
constexpr qreal MarkWidth = 1.5;
constexpr qreal MarkRadius = 4;

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
        constexpr qreal Inset = MarkWidth / 2;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), MarkWidth));
        painter.drawRoundedRect(QRectF(rect()).adjusted(Inset, Inset, -Inset, -Inset), MarkRadius, MarkRadius);
    }
};

} // namespace

MarkedCheckBox::MarkedCheckBox(const QString &name, const QString &text, QWidget *parent)
    : QWidget(parent), m_mark(new FocusMark(this)), m_box(new QCheckBox(this)), m_label(new QLabel(text, this))
{
    m_mark->setObjectName(QStringLiteral("sha") + name);
    m_box->setObjectName(QStringLiteral("chk") + name);
    m_label->setObjectName(QStringLiteral("lbl") + name);
    m_box->setAccessibleName(QString(text).remove(u'&'));
    m_label->setBuddy(m_box);
    m_box->installEventFilter(this);
    m_label->installEventFilter(this);
    connect(m_box, &QCheckBox::toggled, this, &MarkedCheckBox::toggled);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(MarkDistance, MarkDistance, 0, MarkDistance);
    layout->setSpacing(2 * MarkDistance);
    layout->addWidget(m_box);
    layout->addWidget(m_label, 1);
    setFocusProxy(m_box);
}

bool MarkedCheckBox::isChecked() const
{
    return m_box->isChecked();
}

void MarkedCheckBox::setChecked(bool on)
{
    m_box->setChecked(on);
}

bool MarkedCheckBox::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    // Dialogs send a first focus event to a control that has no focus yet.
    if (watched == m_box && (type == QEvent::FocusIn || type == QEvent::FocusOut))
        m_mark->setVisible(type == QEvent::FocusIn && m_box->hasFocus());
    if (watched == m_label && type == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        labelClicked();
    return QWidget::eventFilter(watched, event);
}

void MarkedCheckBox::labelClicked()
{
    m_box->setFocus(Qt::MouseFocusReason);
    m_box->toggle();
}

void MarkedCheckBox::resizeEvent(QResizeEvent *)
{
    layout()->activate();
    m_mark->setGeometry(m_box->geometry().adjusted(-MarkDistance, -MarkDistance, MarkDistance, MarkDistance));
}
