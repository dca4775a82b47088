// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/clsNetworkSettings.h"

#include <QByteArray>

/// The network settings as lines of a key, " = " and a value, in a file of their own.
namespace networkSettingsFile
{

QString pathIn(const QString &dataFolder);
/// What is missing or unreadable keeps its built-in value; so does a value that cannot be.
clsNetworkSettings load(const QString &path);
/// The error is the reason; the file is as it was then.
Outcome<Done, QString> save(const QString &path, const clsNetworkSettings &settings);

clsNetworkSettings parse(const QByteArray &bytes);
QByteArray build(const clsNetworkSettings &settings);

} // namespace networkSettingsFile
