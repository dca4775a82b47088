// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The recent list with a text that was used: in front when it is new, the list as it is when it is there already.
/// It never grows beyond what its file keeps.
QStringList withRecent(QStringList list, const QString &text);
