// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <QUrl>

#include <optional>

/// What can be pressed in a line of a note's text, which stays plain.
namespace textLinks
{

/// The address that the letter at `at` belongs to: of the web or of a mail, nothing else.
std::optional<QUrl> addressAt(QStringView line, qsizetype at);
/// Where the mark is of a line that begins, after blanks, with "[ ]" or "[x]".
std::optional<qsizetype> markOf(QStringView line);
/// The same for a press on the letter at `at`: it has to be on the box.
std::optional<qsizetype> markAt(QStringView line, qsizetype at);
/// The mark that takes the place of this one.
QChar toggled(QChar mark);
/// Where an address leads, as it is told before it is opened.
QString told(const QUrl &address);

} // namespace textLinks
