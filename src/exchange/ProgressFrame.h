// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class Exchange;
class QLabel;
class QProgressBar;
class QPushButton;

/// How far a talk with a server is, with the button that stops it.
class ProgressFrame final : public QGroupBox
{
    Q_OBJECT

public:
    explicit ProgressFrame(QWidget *parent);

    /// As before anything is told.
    void begin();
    /// Shows what the exchange tells from now on.
    void follow(Exchange &exchange);
    /// What was told last.
    QString step() const;
    QPushButton &stopButton() { return *m_stop; }

private:
    QLabel *m_step;      // lblProgress
    QProgressBar *m_bar; // proProgress
    QPushButton *m_stop; // cmdStop
};
