// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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
