// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemSound.h"

#include "platform/waveFile.h"

#include <QLibrary>
#include <QThread>

#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace std::chrono_literals;

namespace
{
/// Far more than a thread needs that is not stuck.
constexpr auto EndOfThread = 100ms;
constexpr auto FunctionName = "quilletsPlayWave";

#ifdef __GLIBC__
void endProcess(int status, void *)
{
    std::fflush(nullptr);
    std::_Exit(status);
}
#else
void endProcess()
{
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}
#endif

/// Exit handlers run in the reverse order of their registration: those of the multimedia libraries, which were loaded
/// before, would wait for a lock that a stuck thread holds, and are not reached.
void skipEarlierExitHandlers()
{
#ifdef __GLIBC__
    const bool registered = ::on_exit(endProcess, nullptr) == 0;
#else
    const bool registered = std::atexit(endProcess) == 0;
#endif
    if (!registered)
        qWarning("The end of the program may wait for the sound server");
}
} // namespace

/// Lives in the thread of the sounds; disks and sound servers that do not answer stop only that.
class SoundWorker final : public QObject
{
public:
    explicit SoundWorker(const QString &libraryPath) : m_library(libraryPath) {}

    void play(const QString &wavPath)
    {
        const auto samples = waveFile::read(wavPath);
        if (!samples)
            return;
        using PlayWave = void (*)(QObject *, const WaveSamples &);
        if (const auto playWave = reinterpret_cast<PlayWave>(m_library.resolve(FunctionName)))
            playWave(this, *samples);
    }

private:
    QLibrary m_library;
};

SystemSound::SystemSound(QString libraryPath) : m_libraryPath(std::move(libraryPath)) {}

SystemSound::~SystemSound()
{
    if (m_thread == nullptr)
        return;
    m_thread->quit();
    // A sound server that accepts and never answers holds the thread for ever, and nothing can free it. The program
    // must end all the same: then thread and worker are left to the end of the process.
    if (m_thread->wait(EndOfThread))
        delete m_thread;
    else
        skipEarlierExitHandlers();
}

void SystemSound::play(const QString &wavPath)
{
    if (m_thread == nullptr)
        startThread();
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, wavPath] { worker->play(wavPath); }, Qt::QueuedConnection);
}

void SystemSound::startThread()
{
    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("SystemSound"));
    m_worker = new SoundWorker(m_libraryPath);
    m_worker->moveToThread(m_thread);
    QObject::connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start(QThread::LowPriority);
}
