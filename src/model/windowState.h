// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"

#include <QByteArray>
#include <QStringList>

/// What the NoteStack keeps for itself from start to start.
struct WindowState
{
    QByteArray geometry; ///< Place and size, in the form that windows give and take; not to be trusted.
    bool isShown = false;
    QStringList order; ///< A fingerprint for each tab, in hexadecimal digits.
    int chosen = -1;   ///< Index into the order; anything may stand here.

    bool operator==(const WindowState &) const = default;
};

/// The file of the NoteStack's window: a small INI text, as QSettings reads and writes it; see docs/file-formats.md.
namespace windowState
{

/// What is missing or cannot be understood keeps its default.
WindowState read(const QString &path);
Outcome<Done, QString> write(const QString &path, const WindowState &state);

// The text of the file, apart from the disk.
WindowState parse(QByteArrayView text);
QByteArray text(const WindowState &state);

} // namespace windowState
