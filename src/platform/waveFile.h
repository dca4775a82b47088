// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The sound of a wave file, as an audio device takes it.
struct WaveSamples
{
    enum class Kind
    {
        UInt8,
        Int16,
        Int32,
        Float
    };

    Kind kind = Kind::Int16;
    int channels = 0;
    int rate = 0;      ///< Frames per second.
    QByteArray frames; ///< Whole frames, little-endian.
};

namespace waveFile
{

/// The samples of a file of at most 64 MB that holds plain ones; of a file that was cut, what is there. Nothing for
/// all else, and nothing is opened that is not a regular file.
std::optional<WaveSamples> read(const QString &path);

} // namespace waveFile
