// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "find/Hit.h"

#include <QHash>
#include <QObject>
#include <QTimer>

class Program;

/// Looks for a text in the titles and texts of all notes, a few milliseconds at a time. Each text is folded once, and
/// again only when it has changed. Of a locked note nothing but the title is looked at.
class NoteSearch final : public QObject
{
    Q_OBJECT

public:
    NoteSearch(Program &program, QObject *parent);

    /// Begins anew. An empty text finds every note.
    void begin(const QString &text);

signals:
    /// What was found since the last time; the first of a search replaces what was there.
    void found(const std::vector<Hit> &hits, bool isFirst);
    void finished();

private:
    void goOn();
    std::optional<Hit> hitIn(qint32 tag);
    const FoldedText &folded(qint32 tag, const QString &text);

    Program &m_program;
    Needle m_needle{QString()};
    std::vector<qint32> m_tags;
    size_t m_next = 0;
    QHash<qint32, FoldedText> m_texts; ///< By tag.
    QTimer m_slice;
};
