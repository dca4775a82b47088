// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/waveFile.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>

#include <chrono>

using namespace std::chrono_literals;

namespace
{

/// A device is stopped when it has taken the last sample, some time before that is heard. Silence is cut instead.
constexpr auto Silence = 500ms;

QAudioFormat formatOf(const WaveSamples &samples)
{
    constexpr auto sampleFormat = [](WaveSamples::Kind kind) {
        switch (kind) {
        case WaveSamples::Kind::UInt8:
            return QAudioFormat::UInt8;
        case WaveSamples::Kind::Int16:
            return QAudioFormat::Int16;
        case WaveSamples::Kind::Int32:
            return QAudioFormat::Int32;
        case WaveSamples::Kind::Float:
            return QAudioFormat::Float;
        }
        return QAudioFormat::Unknown;
    };
    QAudioFormat format;
    format.setSampleFormat(sampleFormat(samples.kind));
    format.setChannelCount(samples.channels);
    format.setSampleRate(samples.rate);
    return format;
}

} // namespace

/// The one function of the library that the program loads at its first sound, so that no start pays for Qt's
/// multimedia. To be called in the owner's thread, which needs an event loop; the sound goes with its owner. One owner
/// plays one sound at a time.
extern "C" Q_DECL_EXPORT void quilletsPlayWave(QObject *owner, const WaveSamples &samples)
{
    qDeleteAll(owner->findChildren<QAudioSink *>(Qt::FindDirectChildrenOnly));
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return;
    const QAudioFormat format = formatOf(samples);
    const char level = samples.kind == WaveSamples::Kind::UInt8 ? '\x80' : '\0';
    auto *sink = new QAudioSink(device, format, owner);
    auto *source = new QBuffer(sink);
    source->setData(samples.frames +
                    QByteArray(format.bytesForDuration(std::chrono::microseconds(Silence).count()), level));
    source->open(QIODevice::ReadOnly);
    QObject::connect(sink, &QAudioSink::stateChanged, sink, [sink, source](QAudio::State state) {
        // Its samples may take megabytes.
        if (state == QAudio::StoppedState || (state == QAudio::IdleState && source->atEnd()))
            sink->deleteLater();
    });
    sink->start(source);
}
