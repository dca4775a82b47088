// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

/// Two small conversions of the dialogs.
namespace modNumerics
{

/// To the nearest whole number; a fraction of exactly 0.5 goes down.
float RoundSingle(float x);
/// The value of a check box: 1 or 0.
int CheckValue(bool flag);

} // namespace modNumerics
