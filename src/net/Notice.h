// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the user is told in a box: this floor says what, the windows show it.
struct Notice
{
    QString text;
    QString caption = QStringLiteral("Quillets");
    bool isCritical = true;
    QString details{}; ///< What the other side said, for who asks; may be empty. Somebody else's text.

    bool operator==(const Notice &) const = default;
};
