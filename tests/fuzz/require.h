// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <cstdlib>

/// Ends the run, so that the fuzzer keeps the input.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

inline QByteArrayView bytesOf(const uint8_t *data, size_t size)
{
    return {data, qsizetype(size)};
}
