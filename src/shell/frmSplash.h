// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QElapsedTimer>
#include <QWidget>

class Program;
class QLabel;

/// Tells during start-up what is being done.
class frmSplash final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmSplash(Program &program);

    /// Shown at once, though the program does not return to its event loop.
    void setStatus(const QString &text);
    QWidget *window() override { return this; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_info;
};
