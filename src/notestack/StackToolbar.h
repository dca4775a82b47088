// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"
#include "platform/PictureButton.h"

#include <QLabel>

#include <array>

/// The toolbar of the NoteStack: ten picture buttons, and the date of the chosen note, which gives way to
/// "Editing ..." while its text is edited.
class StackToolbar final : public QWidget
{
    Q_OBJECT

public:
    /// In the order in which they stand.
    enum class Command { Add, Delete, ToDesktop, Settings, Email, Send, Alarm, Password, Help, Hide };
    static constexpr size_t Commands = 10;

    StackToolbar(const Pictures &pictures, QWidget *parent);

    void setInk(const QColor &ink, const QColor &faintInk);
    void setStatus(const QString &text);
    /// The alarm and password buttons tell the state of the chosen note; null for no note.
    void showState(const clsNoteProps *note);
    PictureButton &button(Command command) { return *m_buttons[static_cast<size_t>(command)]; }

signals:
    void commanded(StackToolbar::Command command);
    void clickedElsewhere();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void layOut();

    std::array<PictureButton *, Commands> m_buttons{};
    QLabel *m_edit; // lblEdit
    QString m_status;
};
