// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackToolbar.h"

#include "platform/toolTips.h"

#include <QMouseEvent>

using namespace std::chrono_literals;

namespace {

constexpr int Side = 28;
constexpr int Pitch = 30;
constexpr int First = 6;
constexpr int StatusRight = 8;
constexpr qreal StatusPoints = 7.5;
constexpr auto Pause = 100ms;

struct ButtonRow
{
    const char *name;
    const char *caption;
    const char *up;
    const char *down;
};

constexpr std::array<ButtonRow, StackToolbar::Commands> Rows{{
    {"imgAdd", QT_TRANSLATE_NOOP("StackToolbar", "Add A Quillet"), "addup.gif", "adddown.gif"},
    {"imgDelete", QT_TRANSLATE_NOOP("StackToolbar", "Delete A Quillet"), "deleteup.gif", "deletedown.gif"},
    {"imgToDesktop", QT_TRANSLATE_NOOP("StackToolbar", "Transfer Quillet To Desktop"), "desktopup.gif", "desktopdown.gif"},
    {"imgSettings", QT_TRANSLATE_NOOP("StackToolbar", "Quillet Settings"), "settingsup.gif", "settingsdown.gif"},
    {"imgEmail", QT_TRANSLATE_NOOP("StackToolbar", "E-mail Quillet"), "emailup.gif", "emaildown.gif"},
    {"imgSend", QT_TRANSLATE_NOOP("StackToolbar", "Send A Quillet"), "sendup.gif", "senddown.gif"},
    {"imgAlarm", QT_TRANSLATE_NOOP("StackToolbar", "Alarm Settings"), "alarmup.gif", "alarmdown.gif"},
    {"imgPassword", QT_TRANSLATE_NOOP("StackToolbar", "Password Settings"), "passwordup.gif", "passworddown.gif"},
    {"imgHelp", QT_TRANSLATE_NOOP("StackToolbar", "Help"), "helpup.gif", "helpdown.gif"},
    {"imgHide", QT_TRANSLATE_NOOP("StackToolbar", "Hide NoteStack"), "hideup.gif", "hidedown.gif"},
}};

} // namespace

StackToolbar::StackToolbar(const Pictures &pictures, QWidget *parent) : QWidget(parent), m_edit(new QLabel(this))
{
    setObjectName(QStringLiteral("fraToolBar"));
    for (size_t i = 0; i < Rows.size(); ++i) {
        auto *button = new PictureButton(pictures, QLatin1String(Rows[i].name), this);
        button->setPictures(QLatin1String(Rows[i].up), QLatin1String(Rows[i].down));
        button->setCaption(tr(Rows[i].caption));
        button->setPause(Pause);
        connect(button, &PictureButton::commanded, this, [this, i] { emit commanded(static_cast<Command>(i)); });
        m_buttons[i] = button;
    }
    m_edit->setObjectName(QStringLiteral("lblEdit"));
    m_edit->setTextFormat(Qt::PlainText);
    m_edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = m_edit->font();
    font.setPointSizeF(StatusPoints);
    m_edit->setFont(font);
}

void StackToolbar::layOut()
{
    int left = First;
    for (PictureButton *button : m_buttons) {
        button->setGeometry(left, (height() - Side) / 2, Side, Side);
        button->setVisible(left + Side <= width());
        left += Pitch;
    }
    m_edit->setGeometry(left, 0, qMax(0, width() - left - StatusRight), height());
    const bool fits = m_edit->fontMetrics().horizontalAdvance(m_status) <= m_edit->width();
    m_edit->setText(fits ? m_status : QString());
    m_edit->setToolTip(toolTips::plain(m_status));
}

void StackToolbar::setInk(const QColor &ink, const QColor &faintInk)
{
    for (PictureButton *button : m_buttons)
        button->setInk(ink);
    QPalette palette = m_edit->palette();
    palette.setColor(QPalette::WindowText, faintInk);
    m_edit->setPalette(palette);
}

void StackToolbar::setStatus(const QString &text)
{
    constexpr qsizetype Longest = 200;
    m_status = text.left(Longest);
    layOut();
}

void StackToolbar::showState(const clsNoteProps *note)
{
    button(Command::Alarm).setDown(note != nullptr && note->AlarmOn);
    button(Command::Password).setDown(note != nullptr && note->PwdOn);
}

void StackToolbar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void StackToolbar::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    emit clickedElsewhere();
}
