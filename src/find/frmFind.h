// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QWidget>

class HitList;
class NoteSearch;
class Program;
class QLabel;
class QLineEdit;

/// The small window that looks for a text in all notes while it is typed. It stays open beside the notes; what it shows
/// of a note is as the note was when the search ran.
class frmFind final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmFind(Program &program);

    /// Shows the window, or brings the one that is open to the front, ready for typing.
    static void open(Program &program);
    QWidget *window() override { return this; }

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void begin();
    void tellCount();
    void showNote();

    Program &m_program;
    NoteSearch *m_search;
    QLineEdit *m_text; // txtFind
    HitList *m_hits;   // lstHits
    QLabel *m_count;   // lblCount
};
