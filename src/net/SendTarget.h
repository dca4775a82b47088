// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where a note is sent.
struct SendTarget
{
    QString host; ///< A host address; while targets are resolved it may be an alias.
    QString comment;
    qint32 port = 0; ///< As it was typed; 0 means DefaultPort.

    static constexpr quint16 DefaultPort = 1420;

    bool operator==(const SendTarget &) const = default;
};
