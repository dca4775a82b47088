// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/NoteHolder.h"
#include "notes/commands/LinesOnPaper.h"
#include "notes/commands/NoteMenu.h"
#include "notes/commands/noteDialogs.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

class LiveNote;
class NoteHost;
class Program;
class QFont;
struct clsNoteProps;

/// What a box says; to be translated in the context "NoteAction". No text: nothing is said.
struct Said
{
    const char *text = nullptr;
    const char *caption = nullptr;
};

/// In what the commands of a note differ between the desktop and the NoteStack.
struct HomeRules
{
    std::span<const MenuEntry> longMenu;
    const char *longMenuName;
    std::span<const MenuEntry> shortMenu;
    bool onlyWithPassword; ///< The menu's "Locked" is for notes that have a password.
    std::span<const NoteCommand> refusedWhenLocked;
    Said refusedLocked;
    bool checksMoves; ///< A read-only note asks for its password before it is moved.
    Said refusedMove;
    Said lockedDeletion;
    Said refusedDeletion;
    noteDialogs::Captions captions;
    notePrinting::LineEnd lineEnd; ///< Of lines that are too wide for the paper.
    /// Puts the note into the other home.
    void (*move)(Program &program, const clsNoteProps &record, Lid lid);
};

/// Commands on one note, in the frame that all share: nothing without a note, nothing that a locked one refuses, then
/// the password of a read-only one, then the command. While a box or a dialog is open the note may move, be locked or
/// go: it is asked for anew each time, and what was commanded is done where it lives then.
class NoteAction
{
public:
    NoteAction(Program &program, qint32 tag, const HomeRules &home, QWidget *owner)
        : m_program(program), m_tag(tag), m_home(home), m_owner(owner)
    {}

    void run(NoteCommand command) const;
    /// Begins the edit as a click does; what was typed already is put behind the text.
    void editText(const QString &typed = {}) const;
    /// Ticks the box of a line, or unticks it; `at` is where its mark is in the text.
    void toggleMark(qsizetype at) const;
    void editTitle() const;
    void unlock() const;
    /// Asks whether the note is to be deleted, whatever refuses it then.
    void askAndDelete() const;
    /// Moves the note to its other home without a question.
    void move() const;

private:
    NoteHost *host() const;
    LiveNote *note() const;
    bool refuses(NoteCommand command) const;
    bool passes(const Said &refusal) const;
    void askAndMove() const;
    void deleteNow() const;
    void openDialog(NoteCommand command) const;
    void copy() const;
    void paste() const;
    void print() const;
    void toggleLock() const;
    void findNext() const;
    void changeFontSize(NoteCommand command) const;
    void say(const Said &said) const;

    Program &m_program;
    qint32 m_tag;
    const HomeRules &m_home;
    QPointer<QWidget> m_owner;
};
