// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/modFileIOData.h"

/// A batch that ends with its scope at the latest. Whoever wants to know how the write went calls end().
class SaveBatch
{
public:
    explicit SaveBatch(DataFileState &state) : m_state(&state) { modFileIO::beginBatch(state); }
    SaveBatch(const SaveBatch &) = delete;
    SaveBatch &operator=(const SaveBatch &) = delete;
    ~SaveBatch();

    Outcome<Done, QString> end();

private:
    DataFileState *m_state; ///< Null once ended.
};
