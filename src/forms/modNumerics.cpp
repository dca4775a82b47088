// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "forms/modNumerics.h"

#include <cmath>

namespace modNumerics
{

float RoundSingle(float x)
{
    const float whole = std::floor(x);
    return x - whole > 0.5F ? whole + 1.0F : whole;
}

int CheckValue(bool flag)
{
    return flag ? 1 : 0;
}

} // namespace modNumerics
