// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windowStacking.h"

#include <QPointer>

/// Shows a form that was just made until it is closed, and tells whether its result may still be asked for: the
/// window it belongs to, or the whole program, may go while it is open.
template <class Dialog> [[nodiscard]] bool showModally(const QPointer<Dialog> &dialog)
{
    windowStacking::keepAboveNotes(*dialog);
    dialog->exec();
    return dialog != nullptr && !dialog->isUnloaded();
}
