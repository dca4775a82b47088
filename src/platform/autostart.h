// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The start of the program at log-in, by an entry in the user's autostart folder, as freedesktop.org's desktops read
/// it. The entry is the truth: other programs may show, change and remove it.
namespace autostart
{

/// False where the system has no such folder.
bool isSupported();
bool isOn();
/// Makes or removes the entry. The program will be started in that folder, where its data folder is. Gives why it
/// failed, else nothing.
QString set(bool on, const QString &folder);

} // namespace autostart
