// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/NoteHolder.h"
#include "notes/commands/NoteMenu.h"

class LiveNote;
class NoteTitle;
class Program;
class QString;
class QWidget;

/// A window of live notes, as the commands of a note see it: whose note is it still, and show it anew. What holders do
/// with all their notes stands here once.
class NoteHost : public NoteHolder
{
public:
    explicit NoteHost(Program &program) : m_program(program) {}

    /// Where the note with this tag lives now; null when it is gone.
    static NoteHost *of(const Program &program, qint32 tag);

    /// The note with this tag; null when it is not, or no longer, in this window.
    virtual LiveNote *live(qint32 tag) = 0;
    /// The note that commands of this window are for; null when there is none.
    virtual LiveNote *chosen() = 0;
    /// Owner of the boxes and dialogs about its notes.
    virtual QWidget &hostWindow() = 0;
    virtual NoteTitle &titleEditor() = 0;
    /// The note is to be seen, not being loaded nor being closed: what is wrong with it may be told, and edited.
    virtual bool isShown(const LiveNote &note) const = 0;
    /// Brings the note to the front with the focus, wherever it is hidden.
    virtual void reveal(qint32 tag) = 0;
    /// Shows the title of the record wherever this window shows titles.
    virtual void showTitle(LiveNote &note) = 0;
    /// Shows the overlay of a locked note, or what it covers.
    virtual void showLock(LiveNote &note) = 0;
    /// Takes the note out of this window; its entry in the data file stays.
    virtual void letGo(qint32 tag) = 0;
    /// Commands that only this window has.
    virtual void runOwn(NoteCommand) {}

    clsNoteProps *recordOf(qint32 tag) override;
    clsNoteProps recordNow(qint32 tag) override;
    void updateRecords() override;
    void commitEditing() override;
    void TextLostFocus() override;

    /// Ends the edits of this note alone.
    void commitEditsOf(qint32 tag);
    void setLocked(qint32 tag, bool on);
    /// Takes the note out of the data file and out of this window.
    void remove(qint32 tag);
    void beginTextEditing(LiveNote &note);
    void beginTitleEditing(LiveNote &note);

protected:
    /// The edit of the title has ended with this text.
    void titleEdited(const QString &text);
    /// The note whose title is, or was last, edited.
    qint32 titleTag() const { return m_titleTag; }

    Program &m_program;

private:
    qint32 m_titleTag = 0;
};
