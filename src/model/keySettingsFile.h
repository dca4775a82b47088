// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/clsKeySettings.h"

/// The keys for all programs, as lines of a key, " = " and a value, in a file of their own.
namespace keySettingsFile
{

QString pathIn(const QString &dataFolder);
/// What is missing or unreadable is no key.
clsKeySettings load(const QString &path);
/// The error is the reason; the file is as it was then.
Outcome<Done, QString> save(const QString &path, const clsKeySettings &settings);

} // namespace keySettingsFile
