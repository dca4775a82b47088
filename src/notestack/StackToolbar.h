// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/NoteMenu.h"
#include "notes/parts/ButtonStrip.h"

/// The toolbar of the NoteStack.
class StackToolbar final : public ButtonStrip
{
    Q_OBJECT

public:
    /// In the order in which they stand. Two are commands of the window, the others of the chosen note.
    enum class Command
    {
        Add,
        Delete,
        ToDesktop,
        Settings,
        Email,
        Send,
        Alarm,
        Password,
        Help,
        Hide
    };
    /// None for those of the window.
    static NoteCommand noteCommand(Command command);

    StackToolbar(const Pictures &pictures, QWidget *parent);

    /// The alarm and password buttons tell the state of the chosen note; null for no note.
    void showState(const clsNoteProps *note);

protected:
    void resizeEvent(QResizeEvent *event) override;
};
