// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/journalFile.h"
#include "require.h"

/// What is taken is written back as it was.
static void check(QByteArrayView bytes)
{
    const auto journal = journalFile::decode(bytes);
    if (journal)
        require(journalFile::encode(journal.value()) == bytes);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView content = bytesOf(data, size);
    check(content);
    // No run would find the digest, behind which the rest lies.
    check(content.toByteArray() + journalFile::digestOf(content));
    return 0;
}
