// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "restore/copyReading.h"

#include <QListWidget>
#include <QTimer>

class Program;

/// The dated copies, newest first, each with what in it differs from today.
class CopyList final : public QListWidget
{
    Q_OBJECT

public:
    CopyList(Program &program, QWidget *parent);

    /// Lists them and chooses the newest in which something differs: the newest of all mostly equals what is there.
    void fill();
    /// The chosen copy, read anew; nothing when there are no copies.
    std::optional<CopyReading> read() const;

private:
    CopyReading readRow(int row);
    int newestThatDiffers();
    void summariseNext();

    Program &m_program;
    std::vector<datedCopies::Copy> m_copies;
    QTimer m_summaries{this}; ///< Reads one copy at a time while nothing else is to do.
    int m_summarised = 0;     ///< Rows that tell what differs.
};
