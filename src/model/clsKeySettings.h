// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The keys that work whichever program has the focus, as text ("Ctrl+Alt+N"); none where empty.
struct clsKeySettings
{
    QString NewNote{};
    QString ShowOrHideAll{};

    bool operator==(const clsKeySettings &) const = default;
};
