// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/parts/NoteText.h"

#include <QPlainTextEdit>

/// The box in which a note's text is edited. It tells when it is left; whoever owns it then takes the text.
class NoteTextBox final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit NoteTextBox(QWidget *parent);

    void setInk(const QColor &ink, const QColor &paper);
    /// The text with CR LF as line ends; exactly the text that was put in as long as nobody changed it.
    QString noteText() const;
    /// Puts a text in, the caret after its last character.
    void setNoteText(const QString &text);

    /// The line at the top, as NoteText counts.
    TextPlace place() const;
    void scrollTo(TextPlace place);
    /// Selects that part of the document, in which a line end is one unit.
    void showFound(qsizetype at, qsizetype length);

    /// In a text that is not edited: another mark where the box of a line has one, which can be taken back.
    void replaceMark(qsizetype at, QChar mark);

signals:
    /// With Ctrl.
    void addressPressed(const QUrl &address);
    /// The box lost the focus to something other than its own menu, or Escape was pressed.
    void left();
    /// What was pasted or dropped has a run of characters that it could not lay out in time; nothing was inserted.
    void pasteRefused();
    /// The wheel was turned with Ctrl; up is positive.
    void fontWheelTurned(int notches);

protected:
    void insertFromMimeData(const QMimeData *source) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    /// The box of the line of this cursor, when there is one.
    bool toggleMark(const QTextCursor &cursor);
    std::optional<QUrl> addressAt(QPoint point) const;
    bool isOnMark(QPoint point) const;
    void replaceAt(int at, QChar sign);

    QString m_original;
    mutable QString m_typed; ///< The text as it was at this revision of the document.
    mutable int m_revision = -1;
    FontWheel m_fontWheel;
};
