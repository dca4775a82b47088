// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/noteFont.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr float SmallestPoints = 1.0F;
constexpr float LargestPoints = 400.0F;
constexpr float UsualPoints = 9.0F;

} // namespace

QFont noteFont::drawable(const QString &family, float points, bool bold, bool italic, QFont base)
{
    if (!family.isEmpty())
        base.setFamily(family);
    const float real = std::isfinite(points) && points > 0 ? points : UsualPoints;
    base.setPointSizeF(static_cast<qreal>(std::clamp(real, SmallestPoints, LargestPoints)));
    base.setBold(bold);
    base.setItalic(italic);
    return base;
}
