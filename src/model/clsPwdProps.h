// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the password dialog edits; the picture's path travels with it.
struct clsPwdProps
{
    QString PicFile{};
    bool PwdOn = false;
    QString Pwd{};
    bool PwdReadonlyOn = false;
    bool PwdOpenCloseOn = false;

    bool operator==(const clsPwdProps &) const = default;
};
