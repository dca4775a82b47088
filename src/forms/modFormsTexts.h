// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// What windows do with texts.
namespace modForms
{

/// The text with its first "&" doubled.
QString DoubleFirstAmpersand(const QString &text);
/// What a caption made by DoubleFirstAmpersand shows: the first "&&" as one "&".
QString shownCaption(const QString &caption);
/// By the last three letters of the trimmed path, case-sensitive.
bool IsPictureFile(QStringView path);
bool IsSoundFile(QStringView path);
/// One line of a text of many: blanks trimmed, tabs to blanks, line ends to ", ".
QString FlattenText(const QString &text);

} // namespace modForms
