// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// A note's text to and from the clipboard.
namespace noteClipboard
{

/// With the line ends of the platform.
void copy(const QString &text);
/// The clipboard's text with CR LF as line ends; nothing when it holds no text.
std::optional<QString> text();

} // namespace noteClipboard
