// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/ExitRescue.h"

#include <cstdlib>
#include <utility>

namespace
{

// What is called at exit gets no argument.
std::function<void()> pending;

void callPending()
{
    if (const auto rescue = std::exchange(pending, nullptr))
        rescue();
}

} // namespace

ExitRescue::ExitRescue(std::function<void()> rescue)
{
    pending = std::move(rescue);
    std::atexit(callPending);
}

ExitRescue::~ExitRescue()
{
    pending = nullptr;
}
