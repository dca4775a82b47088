// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/Twips.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double TwipsPerInch = 1440.0;
constexpr double DesignTwipsPerPixel = 12.0;
constexpr double FarthestPixel = 1'000'000.0;
} // namespace

Twips::Twips(double logicalDpi) : m_perPixel(static_cast<float>(TwipsPerInch / (logicalDpi > 0 ? logicalDpi : 96.0))) {}

float Twips::scaleFactor() const
{
    return m_perPixel / static_cast<float>(DesignTwipsPerPixel);
}

int Twips::toPixels(float twips) const
{
    if (std::isnan(twips))
        return 0;
    const double pixels = std::round(static_cast<double>(twips) / static_cast<double>(m_perPixel));
    return static_cast<int>(std::clamp(pixels, -FarthestPixel, FarthestPixel));
}

float Twips::fromPixels(int pixels) const
{
    return static_cast<float>(pixels) * m_perPixel;
}

int Twips::design(double designTwips)
{
    return static_cast<int>(std::floor(designTwips / DesignTwipsPerPixel + 0.5));
}
