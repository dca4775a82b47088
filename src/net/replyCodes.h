// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// What a receiver says besides the length of the packet: digits as they stand, without a line end.
namespace replyCodes
{

inline constexpr QByteArrayView Ready = "250";
inline constexpr QByteArrayView Received = "300";

} // namespace replyCodes
