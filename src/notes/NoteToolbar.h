// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"
#include "notes/NoteLayout.h"
#include "platform/PictureButton.h"

#include <QLabel>

/// The toolbar strip: six picture buttons and the date, which gives way to "Editing ..." while the text is edited.
class NoteToolbar final : public QWidget
{
    Q_OBJECT

public:
    /// In the order in which they stand.
    enum class Command { Help, Settings, Email, Send, Alarm, Password };

    NoteToolbar(const Pictures &pictures, QWidget *note);

    void layOut(const NoteLayout &layout);
    void setInk(const QColor &ink, const QColor &faintInk);
    void setDate(const QString &date);
    void setEditing(bool editing);
    /// The alarm and password buttons tell the note's state.
    void UpdateToolbarIcons(const clsNoteProps &note);
    PictureButton &button(Command command) { return *m_buttons[static_cast<size_t>(command)]; }

signals:
    void commanded(NoteToolbar::Command command);
    void clickedElsewhere();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    void showFitting();

    std::array<PictureButton *, NoteLayout::ToolbarImages> m_buttons{};
    QLabel *m_edit; // lblEdit
    QString m_date;
    bool m_editing = false;
};
