// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/waveFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cstddef>

namespace waveFile
{
namespace
{

constexpr qint64 LargestFile = 64LL * 1024 * 1024;
constexpr qint64 TagSize = 4;
constexpr int MostChunks = 64;
constexpr int MostChannels = 8;
constexpr quint32 HighestRate = 384'000;
constexpr quint16 Whole = 1; ///< Encodings: whole numbers,
constexpr quint16 Float = 3;
constexpr quint16 Extended = 0xFFFE; ///< one that is told at the end of the format.

/// The chunk that tells how samples are laid out; numbers are little-endian.
struct Format
{
    quint16_le encoding;
    quint16_le channels;
    quint32_le rate;
    quint32_le bytesPerSecond;
    quint16_le frameSize;
    quint16_le bits;
    quint16_le extensionSize;
    quint16_le validBits;
    quint32_le speakers;
    quint16_le extendedEncoding;
};
constexpr quint32 ShortestFormat = 16;
constexpr quint32 LongestFormat = 26;
static_assert(offsetof(Format, extendedEncoding) + sizeof(quint16) == LongestFormat);

template <class Number> bool readNumber(QFile &file, Number &number)
{
    return file.read(reinterpret_cast<char *>(&number), sizeof number) == sizeof number;
}

std::optional<WaveSamples::Kind> kindOf(const Format &format)
{
    const quint16 encoding = format.encoding == Extended ? format.extendedEncoding : format.encoding;
    if (encoding == Float && format.bits == 32)
        return WaveSamples::Kind::Float;
    if (encoding != Whole)
        return std::nullopt;
    switch (format.bits) {
    case 8:
        return WaveSamples::Kind::UInt8;
    case 16:
        return WaveSamples::Kind::Int16;
    case 24:
    case 32:
        return WaveSamples::Kind::Int32;
    default:
        return std::nullopt;
    }
}

bool isPlain(const Format &format)
{
    return kindOf(format) && format.channels >= 1 && format.channels <= MostChannels && format.rate >= 1 &&
           format.rate <= HighestRate && format.frameSize == format.channels * format.bits / 8;
}

bool readFormat(QFile &file, quint32 length, Format &format)
{
    const qint64 wanted = qMin<qint64>(length, LongestFormat);
    return length >= ShortestFormat && file.read(reinterpret_cast<char *>(&format), wanted) == wanted &&
           isPlain(format);
}

/// Audio devices take no samples of three bytes.
QByteArray widened(const QByteArray &threes)
{
    QByteArray fours;
    fours.reserve(threes.size() / 3 * 4);
    for (qsizetype at = 0; at + 2 < threes.size(); at += 3) {
        fours.append('\0');
        fours.append(threes.constData() + at, 3);
    }
    return fours;
}

std::optional<WaveSamples> readFrames(QFile &file, quint32 length, const Format &format)
{
    QByteArray frames = file.read(length);
    frames.chop(frames.size() % format.frameSize);
    if (frames.isEmpty())
        return std::nullopt;
    return WaveSamples{*kindOf(format), format.channels, static_cast<int>(format.rate),
                       format.bits == 24 ? widened(frames) : frames};
}

std::optional<WaveSamples> readChunks(QFile &file)
{
    std::optional<Format> format;
    for (int chunk = 0; chunk < MostChunks; ++chunk) {
        const QByteArray tag = file.read(TagSize);
        quint32_le length;
        if (!readNumber(file, length))
            return std::nullopt;
        const qint64 begin = file.pos();
        if (tag == "fmt " && !readFormat(file, length, format.emplace()))
            return std::nullopt;
        if (tag == "data")
            return format ? readFrames(file, length, *format) : std::nullopt;
        // Chunks begin at even places.
        if (!file.seek(begin + length + length % 2))
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<WaveSamples> read(const QString &path)
{
    if (const QFileInfo info(path); !info.isFile() || info.size() > LargestFile)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(TagSize) != "RIFF" || file.skip(TagSize) != TagSize ||
        file.read(TagSize) != "WAVE")
        return std::nullopt;
    return readChunks(file);
}

} // namespace waveFile
