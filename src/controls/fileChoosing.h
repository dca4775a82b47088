// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class Program;
class QWidget;

/// Choosing the files that notes and books use. Nothing is what a person gave up, what was refused with a box, or what
/// was chosen for a window that is closed by then.
namespace fileChoosing
{

/// What Cancel means: no choice, or the choice of the current file, which is then looked at like any other.
enum class Cancelled
{
    IsNothing,
    IsCurrent
};

std::optional<QString> picture(Program &program, const QString &title, const QString &current, QWidget *owner);
std::optional<QString> sound(Program &program, const QString &title, const QString &current, Cancelled cancelled,
                             QWidget *owner);
std::optional<QString> book(Program &program, const QString &title, const QString &current, QWidget *owner);

} // namespace fileChoosing
