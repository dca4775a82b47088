// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Making plain text of what others write.
namespace plainTexts
{

/// The bytes of a text file: UTF-8 or UTF-16 by its mark, UTF-8 without one, else Latin-1. NULs are left out and the
/// lines parted by CR LF.
QString decoded(const QByteArray &bytes);
/// Every kind of line end becomes CR LF.
QString withNoteLines(QString text);
/// What a page shows: its text without marks, entities resolved, one line for each paragraph, break or entry.
QString fromHtml(const QString &html);
/// "#rrggbb", "rgb(r,g,b)", "rgba(r,g,b,a)" or "#rrrrggggbbbb" as 0x00BBGGRR.
std::optional<qint32> colour(const QString &text);

} // namespace plainTexts
