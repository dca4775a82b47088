// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

class Program;

/// The auto-save timer and the one wait of the program.
namespace modTimers
{

inline constexpr std::chrono::minutes AutoSavePeriod{30};

/// Starts or stops the saving of all notes every half hour.
void SetAutoSave(Program &program, bool on);
/// Returns after the time while events go on being handled.
void Wait(std::chrono::milliseconds time);

} // namespace modTimers
