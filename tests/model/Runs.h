// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/modFileIO.h"
#include "samples.h"

/// A data folder and the runs of a program on it, the first of which has begun.
class Runs : public TestHome
{
public:
    Runs() { start(); }

    /// Starts anew. Without a place for them the notes of stack kind are refused.
    void start(int room = 100, bool takesStacked = true)
    {
        state = DataFileState();
        state.paths = paths;
        notes.clear();
        progress.clear();
        const auto onRecord = [&](clsNoteProps &&note) {
            duringLoad = save(1, {}).kind;
            if (note.NoteStackOn && !takesStacked)
                return 0;
            note.Tag = int(notes.size()) + 1;
            notes.push_back(std::move(note));
            return notes.back().Tag;
        };
        const auto onProgress = [&](int k, int n) { progress << QStringLiteral("%1/%2").arg(k).arg(n); };
        report = modFileIO::LoadDataFile(state, {}, room, onRecord, onProgress, {}, now);
    }
    void startWith(const QByteArray &file)
    {
        setDataFile(file);
        start();
    }

    WriteResult save(qint32 tag, const QString &text)
    {
        return modFileIO::WriteNoteRecord(state, taggedNote(tag, text), NoteFate::Keep);
    }
    WriteResult remove(qint32 tag) { return modFileIO::WriteNoteRecord(state, taggedNote(tag, {}), NoteFate::Remove); }
    Outcome<Done, QString> saveAll()
    {
        SaveBatch batch(state);
        for (const clsNoteProps &note : notes)
            static_cast<void>(modFileIO::WriteNoteRecord(state, note, NoteFate::Keep));
        return batch.end();
    }

    /// All notes, from the newest to the oldest.
    QString texts() const
    {
        QStringList all;
        for (const clsNoteProps &note : notes)
            all << note.Data;
        return all.join(u' ');
    }
    QByteArray backup() const { return contents(paths.BackupFile); }
    QStringList files() const { return QDir(paths.DataFolder).entryList(QDir::Files); }

    DataFileState state;
    LoadReport report;
    std::vector<clsNoteProps> notes;
    QStringList progress;
    WriteResult::Kind duringLoad = WriteResult::Kind::Ignored;
    QDateTime now{QDate(2026, 11, 22), QTime(22, 15, 30)};
};
