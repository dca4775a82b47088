// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QFont>
#include <QStringList>

class Program;
class QPagedPaintDevice;
class QWidget;

/// Printing of one note on as many pages as it needs.
namespace notePrinting
{

inline constexpr float LineWidth = 8600.0F; ///< Twips, not scaled.

/// A note as it goes to the paper.
struct Sheet
{
    QString title;       ///< As shown.
    QString titleFamily; ///< Of the title and of the date.
    QStringList lines;
    QString date;
    QFont textFont;
};

/// Lines of at most LineWidth, measured on the display: a line ends after the first blank or tab behind the limit, at
/// a carriage return, and nowhere else. Line feeds are dropped. Linear in the text.
QStringList SpliceStringToPrint(const QString &text, const QFont &font, float twipsPerPixel);
/// The same for lines that end at their last blank or tab before the limit.
QStringList wrappedBeforeLimit(const QString &text, const QFont &font, float twipsPerPixel);

/// Prints on this paper, from its first page on; false when it failed.
bool printOn(QPagedPaintDevice &paper, const Sheet &sheet);
/// Prints on the default printer; without one, or when it fails, a box says so.
void printSheet(Program &program, const Sheet &sheet, QWidget *owner);

} // namespace notePrinting
