// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/NoteTextBox.h"

#include "drawing/endlessRuns.h"
#include "notes/parts/focusLoss.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

namespace
{
constexpr qreal TabDistance = 80;
}

NoteTextBox::NoteTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabStopDistance(TabDistance);
    setBackgroundVisible(false);
    document()->setDocumentMargin(0);
    setViewportMargins(NoteText::air());
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
    setPlainText(text);
    document()->setModified(false);
    moveCursor(QTextCursor::End);
}

QString NoteTextBox::noteText() const
{
    if (!document()->isModified())
        return m_original;
    QString text = document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1String("\r\n"));
    text.replace(QChar(QChar::LineSeparator), QLatin1String("\r\n"));
    return text;
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
    if (event->key() == Qt::Key_Escape)
        emit left();
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
