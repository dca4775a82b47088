// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/logs.h"

namespace logs
{

// Nothing that is logged is fatal, so that level means silence.
Q_LOGGING_CATEGORY(files, "quillets.files", QtFatalMsg)
Q_LOGGING_CATEGORY(windows, "quillets.windows", QtFatalMsg)
Q_LOGGING_CATEGORY(alarms, "quillets.alarms", QtFatalMsg)
Q_LOGGING_CATEGORY(net, "quillets.net", QtFatalMsg)

} // namespace logs
