// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/parts/ButtonStrip.h"

/// The toolbar of the NoteStack.
class StackToolbar final : public ButtonStrip
{
    Q_OBJECT

public:
    /// In the order in which they stand.
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

    StackToolbar(const Pictures &pictures, QWidget *parent);

    /// The alarm and password buttons tell the state of the chosen note; null for no note.
    void showState(const clsNoteProps *note);

protected:
    void resizeEvent(QResizeEvent *event) override;
};
