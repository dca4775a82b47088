// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

/// Memory that the program has freed.
namespace freeMemory
{

/// Hands it to the system, where it would stay with the program otherwise: blocks of many sizes leave holes. Takes some
/// milliseconds.
void giveBack();

} // namespace freeMemory
