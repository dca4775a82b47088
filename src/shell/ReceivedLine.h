// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class Program;
class ReceivedNotes;

/// The quiet line of the panel that tells how many received notes nobody has looked at. Its menu brings each of them to
/// the front and blocks their senders. Hidden while there are no received notes.
class ReceivedLine final : public QToolButton
{
    Q_OBJECT

public:
    /// Both outlive the line.
    ReceivedLine(Program &program, ReceivedNotes &notes, QWidget *panel);

    /// What is to be told of notes that nobody has looked at; empty when there are none.
    static QString textFor(qsizetype unseen);

private:
    void showCount();
    void openMenu();
    void addNotes();
    void addSenders();

    Program &m_program;
    ReceivedNotes &m_notes;
    QMenu *m_menu;
};
