// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Program;
class QWidget;

/// Notes come in from files and other programs.
namespace noteImport
{

/// Asks what is to come and makes notes of it, as many as there is room for. With files it is asked about those alone;
/// without, the notes of other programs are looked for first.
void run(Program &program, QWidget *owner, const QStringList &files = {});

} // namespace noteImport
