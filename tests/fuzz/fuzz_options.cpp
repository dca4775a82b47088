// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/clsprogramoptions.h"
#include "model/modStreams.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    clsprogramoptions options;
    modStreams::ParseOptionsText(bytesOf(data, size).toByteArray(), options);
    const QByteArray text = modStreams::BuildOptionsText(options);
    require(text.count("\r\n") == 26);
    clsprogramoptions again;
    modStreams::ParseOptionsText(text, again);
    require(again == options);
    require(modStreams::BuildOptionsText(again) == text);
    return 0;
}
