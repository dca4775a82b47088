// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteTextBox.h"

#include "drawing/endlessRuns.h"
#include "drawing/toolTips.h"
#include "notes/parts/focusLoss.h"
#include "notes/parts/textLinks.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>

namespace
{
constexpr qreal TabDistance = 80;

/// In one pass: a replacement by something longer would move the rest of the text for every thousand line ends.
QString withLineEnds(QString raw)
{
    raw.replace(QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator));
    QString text;
    text.reserve(raw.size() + raw.count(QChar(QChar::ParagraphSeparator)));
    qsizetype from = 0;
    for (qsizetype end = 0; (end = raw.indexOf(QChar(QChar::ParagraphSeparator), from)) >= 0; from = end + 1) {
        text += QStringView(raw).sliced(from, end - from);
        text += QLatin1StringView("\r\n");
    }
    return text += QStringView(raw).sliced(from);
}

} // namespace

NoteTextBox::NoteTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabStopDistance(TabDistance);
    setBackgroundVisible(false);
    document()->setDocumentMargin(0);
    setViewportMargins(NoteText::air());
    viewport()->setMouseTracking(true);
    setAccessibleName(tr("Text of the note"));
}

void NoteTextBox::setInk(const QColor &ink, const QColor &paper)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Text, ink);
    colours.setColor(QPalette::Base, paper);
    colours.setColor(QPalette::Window, paper);
    setPalette(colours);
}

void NoteTextBox::setNoteText(const QString &text)
{
    m_original = text;
    m_typed.clear();
    m_revision = -1;
    setPlainText(text);
    document()->setModified(false);
    moveCursor(QTextCursor::End);
}

QString NoteTextBox::noteText() const
{
    if (!document()->isModified())
        return m_original;
    if (m_revision != document()->revision()) {
        m_typed = withLineEnds(document()->toRawText());
        m_revision = document()->revision();
    }
    return m_typed;
}

// The scroll bar counts lines, one for each paragraph that was not laid out yet.
TextPlace NoteTextBox::place() const
{
    const QTextBlock first = firstVisibleBlock();
    return {first.blockNumber(), verticalScrollBar()->value() - first.firstLineNumber()};
}

void NoteTextBox::scrollTo(TextPlace place)
{
    const QTextBlock block = document()->findBlockByNumber(place.paragraph);
    if (block.isValid())
        verticalScrollBar()->setValue(block.firstLineNumber() + place.line);
}

void NoteTextBox::showFound(qsizetype at, qsizetype length)
{
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(at));
    cursor.setPosition(static_cast<int>(at + length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void NoteTextBox::insertFromMimeData(const QMimeData *source)
{
    const QTextCursor cursor = textCursor();
    const QString paragraphs = cursor.block().text();
    // With what stands beside the caret: a run may grow bit by bit.
    if (endlessRuns::isIn(paragraphs.left(cursor.positionInBlock()) + source->text()) ||
        endlessRuns::isIn(source->text() + paragraphs.mid(cursor.positionInBlock())))
        emit pasteRefused();
    else
        QPlainTextEdit::insertFromMimeData(source);
}

void NoteTextBox::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason)
        onceFocusStaysLost(this, [this] { emit left(); });
    else if (event->reason() != Qt::PopupFocusReason)
        emit left();
}

void NoteTextBox::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        emit left();
    else if (isEnter && (event->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier)
        toggleMark(textCursor());
    else if (event->matches(QKeySequence::Redo) || event->keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y))
        redo();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void NoteTextBox::wheelEvent(QWheelEvent *event)
{
    if (!FontWheel::isMeant(*event))
        return QPlainTextEdit::wheelEvent(event);
    event->accept();
    if (const int notches = m_fontWheel.notches(*event); notches != 0)
        emit fontWheelTurned(notches);
}

bool NoteTextBox::toggleMark(const QTextCursor &cursor)
{
    const QTextBlock block = cursor.block();
    const auto mark = textLinks::markOf(block.text());
    if (!mark)
        return false;
    replaceAt(block.position() + static_cast<int>(*mark), textLinks::toggled(block.text().at(*mark)));
    return true;
}

void NoteTextBox::replaceAt(int at, QChar sign)
{
    QTextCursor cursor(document());
    cursor.setPosition(at);
    cursor.setPosition(at + 1, QTextCursor::KeepAnchor);
    cursor.insertText(sign);
}

void NoteTextBox::replaceMark(qsizetype at, QChar mark)
{
    m_original = noteText();
    // A line end of two characters is one in the document.
    replaceAt(static_cast<int>(at - m_original.left(at).count(QLatin1String("\r\n"))), mark);
    m_original[at] = mark;
    document()->setModified(false);
}

std::optional<QUrl> NoteTextBox::addressAt(QPoint point) const
{
    const QTextCursor cursor = cursorForPosition(point);
    return textLinks::addressAt(cursor.block().text(), cursor.positionInBlock());
}

bool NoteTextBox::isOnMark(QPoint point) const
{
    const QTextCursor cursor = cursorForPosition(point);
    return textLinks::markAt(cursor.block().text(), cursor.positionInBlock()).has_value();
}

void NoteTextBox::mousePressEvent(QMouseEvent *event)
{
    const bool isCommand = event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier;
    const QPoint point = event->position().toPoint();
    if (const auto address = isCommand ? addressAt(point) : std::nullopt)
        emit addressPressed(*address);
    else if (!isCommand || !isOnMark(point) || !toggleMark(cursorForPosition(point)))
        QPlainTextEdit::mousePressEvent(event);
}

void NoteTextBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const bool opens = event->modifiers() == Qt::ControlModifier && (addressAt(point) || isOnMark(point));
    viewport()->setCursor(opens ? Qt::PointingHandCursor : Qt::IBeamCursor);
    QPlainTextEdit::mouseMoveEvent(event);
}

bool NoteTextBox::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QPlainTextEdit::viewportEvent(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    const auto address = addressAt(help.pos());
    QToolTip::showText(help.globalPos(), address ? toolTips::plain(textLinks::told(*address)) : QString(), this);
    return true;
}
