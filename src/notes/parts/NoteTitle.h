// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

/// The shown title: tells what the mouse does on it, decides nothing.
class TitleLabel final : public QLabel
{
    Q_OBJECT

public:
    TitleLabel(const QString &name, QWidget *parent);

    void setInk(const QColor &ink);

signals:
    void pressed(QPoint globalPosition);
    void dragged(QPoint globalPosition);
    void released();
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

/// A title and its editor, which is made when it is first needed and lies exactly over the label. The owner is told
/// of the text that was typed and says whether it is taken.
class NoteTitle final : public QObject
{
    Q_OBJECT

public:
    static QFont font();
    /// The label becomes a child of `strip`.
    explicit NoteTitle(QWidget *strip);

    TitleLabel &label() { return *m_label; }
    void setGeometry(const QRect &rect);
    void setVisible(bool visible);
    void setInk(const QColor &ink, const QColor &paper);
    /// The whole title; the label shows as much of it as fits.
    void setTitle(const QString &title);
    /// What the label shows; the whole title where there is no room for any of it.
    QString shownTitle() const;
    /// The beginning of the title, for the window's own name.
    QString windowTitle() const { return m_title.left(LongestWindowTitle); }

    /// Opens the editor with the text, all of it selected.
    void beginEditing(const QString &text);
    bool isEditing() const { return m_editing; }
    /// While it is edited: what is typed.
    QString typedTitle() const { return m_editing ? m_editor->text() : QString(); }
    /// It is edited, and nothing but blanks are typed.
    bool isBlank() const { return m_editing && m_editor->text().trimmed().isEmpty(); }
    /// Ends the edit as if the editor had been left.
    void endEditing();
    /// Ends the edit without a question: a text of blanks is not taken.
    void commitQuietly();
    /// Ends the edit without taking what was typed.
    void giveUp();

signals:
    /// What is being typed changes, or is given up.
    void typed();
    /// The edit has ended with this text; the label is shown again.
    void edited(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr qsizetype LongestWindowTitle = 200;

    void makeEditor();
    void closeEditor();
    void editorLeft(Qt::FocusReason reason);
    QRect editorRect() const;
    void showFitting();

    TitleLabel *m_label;
    QPointer<QLineEdit> m_editor;
    QString m_title;
    QColor m_ink = Qt::black;
    QColor m_paper = Qt::white;
    bool m_editing = false;
    bool m_visible = true;
};
