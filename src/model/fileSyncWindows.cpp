// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/fileSync.h"

#include <cerrno>
#include <io.h>

Outcome<Done, QString> fileSync::syncFile(int handle)
{
    if (::_commit(handle) == 0 || errno == EINVAL)
        return Done{};
    return Failure{qt_error_string(errno)};
}

/// The file systems there keep a journal of names themselves and offer nothing to wait for.
Outcome<Done, QString> fileSync::syncFolder(const QString &)
{
    return Done{};
}
