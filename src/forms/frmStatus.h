// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QWidget>

class Program;
class QLabel;
class QProgressBar;

/// Shows how far a long task is and lets the user stop it. It only notes the wish: the task asks `Cancelled`.
class frmStatus final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmStatus(Program &program);

    void Initialize(const QString &text, int total);
    void setValue(int value);
    QWidget *window() override { return this; }

    bool Cancelled = false;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_text;
    QProgressBar *m_bar;
};
