// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/LinesOnPaper.h"

#include <QFont>
#include <QStringList>

#include <functional>

class Printing;
class Program;
class QPagedPaintDevice;
class QWidget;

/// Printing of one note on as many pages as it needs.
namespace notePrinting
{

/// A note as it goes to the paper.
struct Sheet
{
    QString title;       ///< As shown.
    QString titleFamily; ///< Of the title and of the date.
    QString text;
    LineEnd lineEnd;
    QString date;
    QFont textFont;
};

enum class Printed : quint8
{
    Whole,
    Canceled,
    Failed
};

/// All lines that end behind the limit.
QStringList SpliceStringToPrint(const QString &text, const QFont &font, float twipsPerPixel);

/// Prints on this paper, from its first page on. `goesOn` is asked now and then with the characters of the text that
/// are printed; false ends it, and the printing gives up what it has.
Printed printOn(QPagedPaintDevice &paper, Printing &printing, const Sheet &sheet, float twipsPerPixel,
                const std::function<bool(qsizetype)> &goesOn);
/// Prints on the default printer; what takes long shows how far it is and can be canceled. Without a printer, or when
/// it fails, a box says so. Events may run.
void printSheet(Program &program, const Sheet &sheet, QWidget *owner);

} // namespace notePrinting
