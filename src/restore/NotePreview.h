// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QFrame;
class QPlainTextEdit;
class QPushButton;
struct KeptNote;

/// What a note of a copy says, in its own colours; of a covered one only that it is locked, and how to see it.
class NotePreview final : public QWidget
{
    Q_OBJECT

public:
    explicit NotePreview(QWidget *parent);

    /// Null: there is none.
    void show(const KeptNote *note);

signals:
    void unlockWanted();

private:
    void showText(const KeptNote &note);

    QPlainTextEdit *m_text; // txtPreview
    QFrame *m_cover;        // fraLocked
    QPushButton *m_unlock;  // cmdUnlock
};
