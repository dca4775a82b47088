// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include <chrono>

class Program;
class frmStatus;

/// The progress window of one long task. Whatever closes the windows of the program ends the task too. Once it is
/// shown events run, in which notes may be deleted, locked or moved.
class Progress
{
public:
    /// The window comes when the task has lasted so long, and no events run before.
    Progress(Program &program, const QString &caption, const QString &text, int total,
             std::chrono::milliseconds patience = {});
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    ~Progress() { close(); }

    /// Lets events run; false when the task is to end.
    bool goesOn();
    void setValue(int value);
    void close();

private:
    bool isThere() const;

    Program &m_program;
    std::chrono::milliseconds m_patience;
    QElapsedTimer m_since;
    QPointer<QWidget> m_before; ///< The window that was active.
    QPointer<frmStatus> m_status;
};
