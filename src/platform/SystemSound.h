// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundPlayer.h"

class QThread;
class SoundWorker;

/// The sound of the desktop. Nothing of it exists before the first sound: then a thread of its own begins, loads the
/// library that knows how to play, and plays. A later sound takes the place of one that still plays.
class SystemSound final : public SoundPlayer
{
public:
    /// The path of the library, with or without its suffix.
    explicit SystemSound(QString libraryPath);
    ~SystemSound() override;

    void play(const QString &wavPath) override;

private:
    void startThread();

    QString m_libraryPath;
    QThread *m_thread = nullptr;
    SoundWorker *m_worker = nullptr;
};
