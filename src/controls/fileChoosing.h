// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class Program;
class QWidget;

/// Choosing the files that notes and books use. Nothing is what a person gave up, or what was refused with a box.
namespace fileChoosing
{

std::optional<QString> picture(Program &program, const QString &title, const QString &current, QWidget *owner);
std::optional<QString> sound(Program &program, const QString &title, const QString &current, QWidget *owner);
std::optional<QString> book(Program &program, const QString &title, const QString &current, QWidget *owner);

} // namespace fileChoosing
