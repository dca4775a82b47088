// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteToolbar.h"

#include "platform/toolTips.h"

#include <QMouseEvent>

namespace {

constexpr qreal DatePoints = 7.0;
constexpr qsizetype ShortestDate = 8;
constexpr qsizetype LongestDate = 200;

struct ButtonRow
{
    const char *name;
    const char *caption;
    const char *up;
    const char *down;
};

constexpr std::array<ButtonRow, NoteLayout::ToolbarImages> Rows{{
    {"imgHelp", QT_TRANSLATE_NOOP("NoteToolbar", "Help"), "helpupsmall.gif", "helpdownsmall.gif"},
    {"imgSettings", QT_TRANSLATE_NOOP("NoteToolbar", "Quillet Settings"), "settingsupsmall.gif", "settingsdownsmall.gif"},
    {"imgEmail", QT_TRANSLATE_NOOP("NoteToolbar", "E-mail A Quillet"), "emailupsmall.gif", "emaildownsmall.gif"},
    {"imgSend", QT_TRANSLATE_NOOP("NoteToolbar", "Send A Quillet"), "sendupsmall.gif", "senddownsmall.gif"},
    {"imgAlarm", QT_TRANSLATE_NOOP("NoteToolbar", "Alarm Settings"), "alarmupsmall.gif", "alarmdownsmall.gif"},
    {"imgPassword", QT_TRANSLATE_NOOP("NoteToolbar", "Password Settings"), "passwordupsmall.gif", "passworddownsmall.gif"},
}};

} // namespace

NoteToolbar::NoteToolbar(const Pictures &pictures, QWidget *note) : QWidget(note), m_edit(new QLabel(this))
{
    setObjectName(QStringLiteral("fraButtons"));
    for (size_t i = 0; i < Rows.size(); ++i) {
        auto *button = new PictureButton(pictures, QLatin1String(Rows[i].name), this);
        button->setPictures(QLatin1String(Rows[i].up), QLatin1String(Rows[i].down));
        button->setCaption(tr(Rows[i].caption));
        connect(button, &PictureButton::commanded, this, [this, i] { emit commanded(static_cast<Command>(i)); });
        m_buttons[i] = button;
    }
    m_edit->setObjectName(QStringLiteral("lblEdit"));
    m_edit->setTextFormat(Qt::PlainText);
    m_edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = m_edit->font();
    font.setPointSizeF(DatePoints);
    m_edit->setFont(font);
}

void NoteToolbar::layOut(const NoteLayout &layout)
{
    setVisible(!layout.buttons.isEmpty());
    if (layout.buttons.isEmpty())
        return;
    setGeometry(layout.buttons);
    for (size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setGeometry(layout.images[i]);
        m_buttons[i]->setVisible(layout.imageFits[i]);
    }
    m_edit->setGeometry(layout.edit);
    m_edit->setVisible(!layout.edit.isEmpty());
    showFitting();
}

/// The date loses its later words, the time, before it is left out.
void NoteToolbar::showFitting()
{
    const QFontMetrics metrics(m_edit->font());
    QString text = m_editing ? tr("Editing ...") : m_date.left(LongestDate);
    while (!text.isEmpty() && metrics.horizontalAdvance(text) > m_edit->width())
        text.truncate(qMax(qsizetype(0), text.lastIndexOf(QLatin1Char(' '))));
    const bool tellsSomething = text.size() >= ShortestDate || text == m_date;
    m_edit->setText(tellsSomething ? text : QString());
    m_edit->setToolTip(toolTips::plain(m_date));
}

void NoteToolbar::setInk(const QColor &ink, const QColor &faintInk)
{
    for (auto *button : m_buttons)
        button->setInk(ink);
    QPalette palette = m_edit->palette();
    palette.setColor(QPalette::WindowText, faintInk);
    m_edit->setPalette(palette);
}

void NoteToolbar::setDate(const QString &date)
{
    m_date = date;
    showFitting();
}

void NoteToolbar::setEditing(bool editing)
{
    m_editing = editing;
    showFitting();
}

void NoteToolbar::UpdateToolbarIcons(const clsNoteProps &note)
{
    button(Command::Alarm).setDown(note.AlarmOn);
    button(Command::Password).setDown(note.PwdOn);
}

void NoteToolbar::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    emit clickedElsewhere();
}
