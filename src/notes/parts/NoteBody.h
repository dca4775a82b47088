// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/NoteInk.h"
#include "notes/parts/BackgroundPicture.h"
#include "notes/parts/NoteText.h"
#include "notes/parts/NoteTextBox.h"

#include <QPointer>

/// The body of a note: the display layer with picture and text, and the editing layer with the text box, which is
/// made when the text is first edited. One of the two is shown.
class NoteBody final : public QObject
{
    Q_OBJECT

public:
    explicit NoteBody(QWidget *note);
    ~NoteBody() override;

    /// Where one window has several bodies: the names of the controls get "(index)" behind them.
    void setIndex(int index);

    void setGeometry(const QRect &rect);
    /// False hides both layers.
    void setShown(bool shown);
    void setLook(const QFont &font, const NoteInk &ink);
    void setInk(const NoteInk &ink);
    const QFont &font() const { return m_font; }
    /// Another font for the text that is shown: the line at the top stays there.
    void changeFont(const QFont &font);
    void setText(const QString &text);
    /// Null takes the picture away. False when the file cannot be shown.
    bool setPicture(std::shared_ptr<SharedPicture> picture);

    /// Scrolls the text that is shown; false while it is edited or hidden, and for keys that scroll nothing.
    bool scrollByKey(const QKeyEvent &key) const { return m_shown && !m_editing && m_text->scrollByKey(key); }

    /// The text to look for something in, as `showFound` counts: that of the edit while there is one.
    QString searchedText() const { return m_editing ? m_textBox->toPlainText() : m_text->shownText(); }
    /// Where to go on: behind what was found last, or behind the caret.
    qsizetype searchedTo() const { return m_editing ? m_textBox->textCursor().selectionEnd() : m_text->endOfFound(); }
    void showFound(qsizetype at, qsizetype length)
    {
        m_editing ? m_textBox->showFound(at, length) : m_text->showFound(at, length);
    }

    void BeginTextEditing(const QString &text);
    bool isEditing() const { return m_editing; }
    /// While it is edited: puts that where the caret is.
    void type(const QString &text) { m_textBox->insertPlainText(text); }
    /// Ends an edit that is under way and tells its text.
    void commit();
    /// While it is edited: what a commit would give.
    QString typedText() const { return m_textBox->noteText(); }
    /// Replaces the whole text, undoable in the next edit.
    void replaceText(const QString &former, const QString &text);
    /// Another mark in the box of a line, undoable in the next edit.
    void replaceMark(const QString &former, qsizetype at, QChar mark);
    /// Nothing of the text is left in any widget.
    void forgetText();

signals:
    void textPressed(Qt::MouseButton button, QPoint globalPosition);
    void editingChanged(bool editing);
    /// The text that is being edited changes.
    void typed();
    void committed(const QString &text);
    /// An address was pressed with Ctrl.
    void addressPressed(const QUrl &address);
    /// The same of the mark of a box in the text that is shown; where it is in the text.
    void markPressed(qsizetype at);
    /// The wheel was turned with Ctrl; up is positive.
    void fontWheelTurned(int notches);
    /// What was pasted into the edit could not be laid out in time.
    void pasteRefused();

private:
    void nameControls();
    void makeTextBox();
    void prepareTextBox(const QString &text);
    void showLayers();
    void dressTextBox();

    QWidget *m_note;
    QString m_suffix;
    QPointer<QWidget> m_display; // fraDisplay
    NoteText *m_text;            // lblDisplay
    QPointer<BackgroundPicture> m_picture;
    QPointer<QWidget> m_editLayer; // fraText
    QPointer<NoteTextBox> m_textBox;
    QRect m_rect;
    QFont m_font;
    NoteInk m_ink;
    bool m_shown = true;
    bool m_editing = false;
};
