// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QThread;
class WaveSoundWorker;

/// Plays the sound of an alarm; a test listens in its place.
class SoundPlayer
{
public:
    SoundPlayer() = default;
    SoundPlayer(const SoundPlayer &) = delete;
    SoundPlayer &operator=(const SoundPlayer &) = delete;
    virtual ~SoundPlayer() = default;

    /// Plays the file once, in the background, and returns at once. What cannot be played is not played.
    virtual void play(const QString &wavPath) = 0;
};

/// The sound of the desktop. Nothing of it exists before the first sound: then a thread of its own begins, loads the
/// library that knows how to play, and plays. A later sound takes the place of one that still plays.
class WaveSound final : public SoundPlayer
{
public:
    /// The library is found beside the program unless its path is given.
    explicit WaveSound(QString libraryPath = {});
    ~WaveSound() override;

    void play(const QString &wavPath) override;

private:
    void startThread();

    QString m_libraryPath;
    QThread *m_thread = nullptr;
    WaveSoundWorker *m_worker = nullptr;
};
