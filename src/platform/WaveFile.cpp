// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/WaveFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <array>

namespace waveFile
{
namespace
{

constexpr qint64 LargestFile = 64LL * 1024 * 1024;
constexpr qint64 TagSize = 4;
constexpr int MostChunksBeforeFormat = 32;
constexpr int MostChannels = 8;
constexpr quint32 HighestRate = 384'000;

/// The beginning of the chunk that tells how samples are laid out; numbers are little-endian.
struct Format
{
    quint16_le encoding;
    quint16_le channels;
    quint32_le rate;
    quint32_le bytesPerSecond;
    quint16_le frameSize;
    quint16_le bits;
};
static_assert(sizeof(Format) == 16);

bool isPlain(const Format &format)
{
    constexpr std::array<quint16, 3> Encodings{0x0001, 0x0003, 0xFFFE};
    constexpr std::array<quint16, 4> Depths{8, 16, 24, 32};
    const auto isOneOf = [](const auto &all, quint16 value) {
        return std::find(all.begin(), all.end(), value) != all.end();
    };
    return isOneOf(Encodings, format.encoding) && isOneOf(Depths, format.bits) && format.channels >= 1 &&
           format.channels <= MostChannels && format.rate >= 1 && format.rate <= HighestRate &&
           format.frameSize == format.channels * format.bits / 8;
}

bool readFormat(QFile &file)
{
    for (int chunk = 0; chunk < MostChunksBeforeFormat; ++chunk) {
        const QByteArray tag = file.read(TagSize);
        quint32_le length;
        if (file.read(reinterpret_cast<char *>(&length), sizeof length) != sizeof length)
            return false;
        if (tag == "fmt ") {
            Format format;
            return length >= sizeof format &&
                   file.read(reinterpret_cast<char *>(&format), sizeof format) == sizeof format && isPlain(format);
        }
        // Chunks begin at even places.
        if (!file.seek(file.pos() + length + length % 2))
            return false;
    }
    return false;
}

} // namespace

bool isPlayable(const QString &path)
{
    if (const QFileInfo info(path); !info.isFile() || info.size() > LargestFile)
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.read(TagSize) != "RIFF")
        return false;
    return file.skip(TagSize) == TagSize && file.read(TagSize) == "WAVE" && readFormat(file);
}

} // namespace waveFile
