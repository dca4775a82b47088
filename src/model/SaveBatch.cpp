// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/SaveBatch.h"

#include <utility>

SaveBatch::~SaveBatch()
{
    static_cast<void>(end());
}

Outcome<Done, QString> SaveBatch::end()
{
    DataFileState *const state = std::exchange(m_state, nullptr);
    if (!state)
        return Done{};
    return modFileIO::endBatch(*state);
}
