// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundPlayer.h"

#include <QStringList>

/// Notes what was to be played.
class FakeSound final : public SoundPlayer
{
public:
    QStringList played;

    void play(const QString &wavPath) override { played.append(wavPath); }
};
