// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Something to be done when the process ends in another way than by the end of this object: libraries of window
/// systems end it when the connection to the display breaks. What is done must not need a window. One object at a
/// time.
class ExitRescue
{
public:
    explicit ExitRescue(std::function<void()> rescue);
    ExitRescue(const ExitRescue &) = delete;
    ExitRescue &operator=(const ExitRescue &) = delete;
    ~ExitRescue();
};
