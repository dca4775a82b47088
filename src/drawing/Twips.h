// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Lengths of the display. A twip is 1/1440 inch of the logical resolution; the stored sizes and places of notes are
/// twips, the windows are laid out in device-independent pixels. Design lengths are for a display of 12 twips per
/// pixel and are the same number of pixels (length / 12) on every display.
class Twips
{
public:
    explicit Twips(double logicalDpi = 96.0);

    float perPixel() const { return m_perPixel; }
    /// Factor by which design lengths are multiplied to be twips of this display.
    float scaleFactor() const;
    /// Whole pixels nearest to the length; NaN gives 0, what no screen can hold gives the nearest end of +-1 000 000.
    int toPixels(float twips) const;
    /// The inverse: toPixels(fromPixels(n)) is n.
    float fromPixels(int pixels) const;
    /// A design length in pixels, rounded half up.
    static int design(double designTwips);

private:
    float m_perPixel;
};
