// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/toolTips.h"
#include "notes/parts/NoteText.h"
#include "notes/parts/textLinks.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

// What mouse and keys do on a text that is looked at.

namespace
{

constexpr int StepsPerNotch = 120;
constexpr int LinesPerNotch = 3;

} // namespace

/// The letter under the pointer: its paragraph, and where it is in it; -1 for none.
std::pair<const NoteText::Paragraph *, qsizetype> NoteText::letterAt(QPointF point)
{
    layOutTo(m_scroll + height());
    const QPointF inside = point - QPointF(air().left(), air().top() - m_scroll);
    for (const Paragraph &paragraph : m_paragraphs) {
        if (inside.y() < paragraph.top || inside.y() >= paragraph.top + paragraph.height)
            continue;
        for (int i = 0; i < paragraph.layout->lineCount(); ++i) {
            const QTextLine line = paragraph.layout->lineAt(i);
            const qreal top = paragraph.top + line.y();
            if (inside.y() < top || inside.y() >= top + line.height())
                continue;
            const bool isOnText = inside.x() >= 0 && inside.x() <= line.naturalTextWidth();
            return {&paragraph, isOnText ? line.xToCursor(inside.x(), QTextLine::CursorOnCharacter) : -1};
        }
    }
    return {nullptr, -1};
}

std::optional<QUrl> NoteText::addressAt(QPointF point)
{
    const auto [paragraph, at] = letterAt(point);
    return at >= 0 ? textLinks::addressAt(paragraph->layout->text(), at) : std::nullopt;
}

std::optional<qsizetype> NoteText::markAt(QPointF point)
{
    const auto [paragraph, at] = letterAt(point);
    // Of a paragraph in pieces only the first begins a line.
    const bool beginsLine = at >= 0 && (paragraph->begin == 0 || isLineEnd(m_shown.at(paragraph->begin - 1)));
    const auto mark = beginsLine ? textLinks::markAt(paragraph->layout->text(), at) : std::nullopt;
    return mark ? std::optional(paragraph->begin + *mark) : std::nullopt;
}

void NoteText::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    forgetFound();
    const bool isCommand = event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier;
    if (const auto address = isCommand ? addressAt(event->position()) : std::nullopt)
        emit addressPressed(*address);
    else if (const auto mark = isCommand ? markAt(event->position()) : std::nullopt)
        emit markPressed(*mark);
    else
        emit pressed(event->button(), event->globalPosition().toPoint());
}

void NoteText::mouseMoveEvent(QMouseEvent *event)
{
    const bool opens =
        event->modifiers() == Qt::ControlModifier && (addressAt(event->position()) || markAt(event->position()));
    setCursor(opens ? Qt::PointingHandCursor : Qt::IBeamCursor);
    QLabel::mouseMoveEvent(event);
}

bool NoteText::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    const auto address = addressAt(help.pos());
    QToolTip::showText(help.globalPos(), address ? toolTips::plain(textLinks::told(*address)) : QString(), this);
    return true;
}

void NoteText::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (const int notches = m_fontWheel.notches(*event); notches != 0)
        emit fontWheelTurned(notches);
    if (FontWheel::isMeant(*event))
        return;
    m_turned += event->angleDelta().y() * LinesPerNotch;
    const int lines = m_turned / StepsPerNotch;
    m_turned -= lines * StepsPerNotch;
    if (lines != 0)
        scrollToLine(m_firstLine - lines);
}

bool NoteText::scrollByKey(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool toAnEnd = key.key() == Qt::Key_Home || key.key() == Qt::Key_End;
    if (modifiers != Qt::NoModifier && !(toAnEnd && modifiers == Qt::ControlModifier))
        return false;
    const int page = qMax(1, static_cast<int>(visibleHeight() / QFontMetricsF(font()).lineSpacing()) - 1);
    switch (key.key()) {
    case Qt::Key_Up:
        scrollToLine(m_firstLine - 1);
        return true;
    case Qt::Key_Down:
        scrollToLine(m_firstLine + 1);
        return true;
    case Qt::Key_PageUp:
        scrollToLine(m_firstLine - page);
        return true;
    case Qt::Key_PageDown:
        scrollToLine(m_firstLine + page);
        return true;
    case Qt::Key_Home:
        scrollToLine(0);
        return true;
    case Qt::Key_End:
        scrollToLine(m_firstLine + LastReachable);
        return true;
    default:
        return false;
    }
}
