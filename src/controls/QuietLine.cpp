// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/QuietLine.h"

#include "forms/Program.h"
#include "forms/modForms.h"
#include "platform/windowStacking.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

namespace
{

constexpr int SideMargin = 14;
constexpr int Margin = 6;
constexpr int FromEdge = 12;

/// Inside the screen that the middle of the place is on.
QPoint besides(const QRect &place, QSize size)
{
    const QScreen *screen = QGuiApplication::screenAt(place.center());
    const QRect room = (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QPoint wanted(place.center().x() - size.width() / 2, place.bottom() - FromEdge - size.height());
    return {qBound(room.left(), wanted.x(), qMax(room.left(), room.right() - size.width())),
            qBound(room.top(), wanted.y(), qMax(room.top(), room.bottom() - size.height()))};
}

} // namespace

QuietLine::QuietLine(Program &program, Offer offer)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      Form(program.forms, formNames::QuietLine.toString()), m_program(program), m_offer(std::move(offer))
{
    setObjectName(formName());
    setWindowTitle(m_offer.text + u' ' + m_offer.action);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::StrongFocus);
    makeParts();
    m_end.setObjectName(QStringLiteral("timEnd"));
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &QuietLine::timeIsUp);
    if (m_offer.keys.isEmpty())
        return;
    auto *keys = new QShortcut(m_offer.keys, this);
    keys->setContext(Qt::ApplicationShortcut);
    connect(keys, &QShortcut::activated, this, &QuietLine::accept);
}

void QuietLine::makeParts()
{
    auto *text = new QLabel(m_offer.text, this);
    text->setObjectName(QStringLiteral("lblText"));
    text->setTextFormat(Qt::PlainText);
    auto *action = new QPushButton(m_offer.action, this);
    action->setObjectName(QStringLiteral("cmdAction"));
    action->setFlat(true);
    action->setCursor(Qt::PointingHandCursor);
    QFont bold = action->font();
    bold.setBold(true);
    action->setFont(bold);
    QPalette link = action->palette();
    link.setColor(QPalette::ButtonText, link.color(QPalette::Link));
    action->setPalette(link);
    action->setToolTip(m_offer.keys.toString(QKeySequence::NativeText));
    connect(action, &QPushButton::clicked, this, &QuietLine::accept);
    auto *cross = new QToolButton(this);
    cross->setObjectName(QStringLiteral("cmdClose"));
    cross->setText(QStringLiteral("\u00D7"));
    cross->setAutoRaise(true);
    cross->setAccessibleName(tr("Close"));
    connect(cross, &QToolButton::clicked, this, [this] { unload(); });
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(SideMargin, Margin, Margin, Margin);
    row->setSpacing(0);
    for (QWidget *part : {static_cast<QWidget *>(text), static_cast<QWidget *>(action), static_cast<QWidget *>(cross)})
        row->addWidget(part);
}

void QuietLine::showBy(const QRect &place)
{
    for (Form *other : m_program.forms.loaded())
        if (other != this && other->formName() == formNames::QuietLine)
            other->unload();
    adjustSize();
    move(besides(place, size()));
    show();
    begin();
}

void QuietLine::begin()
{
    if (m_offer.lasts.count() > 0)
        m_end.start(m_offer.lasts);
}

/// While a box or a dialog is open it could not have been pressed.
void QuietLine::timeIsUp()
{
    if (QApplication::activeModalWidget() != nullptr)
        begin();
    else
        unload();
}

void QuietLine::accept()
{
    if (isUnloaded() || m_program.Exiting)
        return;
    const auto accepted = m_offer.accepted;
    unload();
    accepted();
}

void QuietLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor outline = palette().color(QPalette::WindowText);
    outline.setAlphaF(0.35F);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    for (const QRect &edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                              QRect(width() - 1, 0, 1, height())})
        painter.fillRect(edge, outline);
}

void QuietLine::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { windowStacking::skipTaskBar(*this); }, Qt::QueuedConnection);
}

void QuietLine::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    m_end.stop();
}

void QuietLine::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    begin();
}

void QuietLine::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        unload();
    else if (event->key() == Qt::Key_F6)
        modForms::activateNext(m_program, *this);
    else
        QWidget::keyPressEvent(event);
}

void QuietLine::closeEvent(QCloseEvent *event)
{
    event->accept();
    unload();
}
