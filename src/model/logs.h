// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

/// What the program tells of itself to whoever looks for a fault: nothing, unless it is asked for. The environment
/// variable QT_LOGGING_RULES does that, as in "quillets.*=true". A log tells of paths, sizes and reasons; never of a
/// note's text or title, and never of a password.
namespace logs
{

Q_DECLARE_LOGGING_CATEGORY(files)   ///< quillets.files: what was read, refused, skipped, kept aside, replaced.
Q_DECLARE_LOGGING_CATEGORY(windows) ///< quillets.windows
Q_DECLARE_LOGGING_CATEGORY(alarms)  ///< quillets.alarms
Q_DECLARE_LOGGING_CATEGORY(net)     ///< quillets.net

} // namespace logs
