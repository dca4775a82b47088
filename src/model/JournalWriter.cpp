// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "model/JournalWriter.h"

#include "model/wholeFile.h"

#include <QFile>

namespace
{

QByteArray bytesOf(const JournalSnapshot &snapshot)
{
    Journal journal{snapshot.file, snapshot.carried};
    for (const JournalSnapshot::Note &note : snapshot.notes)
        journal.entries.push_back(
            {note.stored.isEmpty() ? QByteArray() : journalFile::digestOf(note.stored), note.record});
    return journalFile::encode(journal);
}

JournalWriter::Outcome put(const QString &path, const JournalSnapshot &snapshot)
{
    return snapshot.isEmpty() ? wholeFile::remove(path) : wholeFile::replace(path, bytesOf(snapshot));
}

} // namespace

JournalWriter::JournalWriter(QString path, std::function<void(const Outcome &)> written)
    : m_path(std::move(path)), m_written(std::move(written))
{}

JournalWriter::~JournalWriter()
{
    if (!m_thread.joinable())
        return;
    {
        const std::scoped_lock lock(m_mutex);
        m_ending = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

bool JournalWriter::isKnown(const JournalSnapshot &snapshot)
{
    if (!m_last)
        return snapshot.isEmpty() && !QFile::exists(m_path);
    const std::scoped_lock lock(m_mutex);
    return !m_failed && *m_last == snapshot;
}

void JournalWriter::write(JournalSnapshot snapshot)
{
    const bool known = isKnown(snapshot);
    m_last = snapshot;
    if (known)
        return;
    {
        const std::scoped_lock lock(m_mutex);
        m_pending = std::move(snapshot);
    }
    if (!m_thread.joinable())
        m_thread = std::thread([this] { run(); });
    m_changed.notify_all();
}

void JournalWriter::finish()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_pending && !m_writing; });
}

void JournalWriter::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return isToWork(); });
        if (!m_pending)
            return;
        const JournalSnapshot snapshot = *std::exchange(m_pending, std::nullopt);
        m_writing = true;
        lock.unlock();
        const Outcome done = put(m_path, snapshot);
        m_written(done);
        lock.lock();
        m_writing = false;
        m_failed = !done.ok();
        m_changed.notify_all();
    }
}
