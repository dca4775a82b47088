// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace waveFile
{

/// True for a file that begins as a wave file of plain samples and is at most 64 MB long. It reads no samples, and
/// touches nothing that is not a regular file.
bool isPlayable(const QString &path);

} // namespace waveFile
