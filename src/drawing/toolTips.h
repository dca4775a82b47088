// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Tooltips of texts that come from notes.
namespace toolTips
{

/// Shown as it stands whatever is in it; only the beginning of a very long text.
QString plain(const QString &text);

} // namespace toolTips
