// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/NoteAlarm.h"
#include "drawing/NoteInk.h"
#include "forms/NoteHolder.h"
#include "model/clsNoteProps.h"
#include "notes/parts/NoteBody.h"

#include <memory>

class Program;

/// One note as it lives in a window: its record, what is shown of it, and its alarm. The desktop note holds one, the
/// NoteStack many. It stays where it is in memory until it leaves its window, and goes by deleteLater.
class LiveNote final : public QObject
{
    Q_OBJECT

public:
    /// `paper` is what the body lies on.
    LiveNote(Program &program, QWidget *paper);

    clsNoteProps record;
    NoteInk ink;
    NoteBody body;
    NoteAlarm alarm;
    bool locked = false; ///< Nothing of the text is in any widget.

    qint32 tag() const { return record.Tag; }
    /// Takes the record over. A note that opens locked is locked before anything of it is shown: boxes may open while
    /// it is dressed.
    void take(clsNoteProps note, Lid lid);
    void markChanged();
    /// The text of the record, or what is being typed instead.
    QString textNow() const;
    /// The ink alone as the record has it, after a change of the desktop's colours.
    void mixInk();
    /// Ink, font and text as the record has them; `base` is the font of the window.
    void dress(const QFont &base);
    void setLocked(bool on);
    /// In points.
    void setFontSize(float points);
    /// Larger or smaller by so many points, within what can be read and fits.
    void stepFontSize(int points);
    /// Ends what the note has running; said when it leaves its window.
    void stop();

private:
    void textCommitted(const QString &text);
    void wheelTurned(int notches);

    Program &m_program;
};
