// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/Outcome.h"
#include "model/journalFile.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

/// What the journal is to hold, before the slow part of making it.
struct JournalSnapshot
{
    struct Note
    {
        QByteArray stored; ///< Its record in the data file; empty when it has none there.
        QByteArray record;

        bool operator==(const Note &) const = default;
    };

    QByteArray file; ///< Digest of the data file.
    std::vector<JournalEntry> carried;
    std::vector<Note> notes;

    bool isEmpty() const { return carried.empty() && notes.empty(); }
    bool operator==(const JournalSnapshot &) const = default;
};

/// Writes the journal on a thread of its own, since a busy disk may take seconds. It gets bytes and touches nothing
/// else. Of the snapshots that come meanwhile only the newest is written.
class JournalWriter
{
public:
    using Outcome = ::Outcome<Done, QString>;

    /// `written` is told how each write ended, on the thread that wrote.
    JournalWriter(QString path, std::function<void(const Outcome &)> written);
    JournalWriter(const JournalWriter &) = delete;
    JournalWriter &operator=(const JournalWriter &) = delete;
    /// Writes what was asked for first.
    ~JournalWriter();

    /// Returns at once. One like the last is written only when that one could not be; an empty one removes the file.
    void write(JournalSnapshot snapshot);
    /// Returns when the disk is as was asked for, or cannot be.
    void finish();
    /// Nothing is in the journal, nor was asked for.
    bool isEmpty() const { return m_last && m_last->isEmpty(); }

private:
    void run();
    bool isKnown(const JournalSnapshot &snapshot);
    bool isToWork() const { return m_pending.has_value() || m_ending; }

    const QString m_path;
    const std::function<void(const Outcome &)> m_written;
    std::optional<JournalSnapshot> m_last; ///< None: whatever an earlier run has left.
    std::mutex m_mutex;                    ///< Of all that follows.
    std::condition_variable m_changed;
    std::optional<JournalSnapshot> m_pending;
    bool m_writing = false;
    bool m_failed = false;
    bool m_ending = false;
    std::thread m_thread; ///< Begins with the first write.
};
