// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/windowState.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const WindowState state = windowState::parse(bytesOf(data, size));
    require(state.geometry.size() <= qsizetype(size) && state.order.size() <= qsizetype(size));
    require(windowState::parse(windowState::text(state)) == state);
    return 0;
}
