// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QDialog>

class Program;

/// Tells what the program is built with and under which terms it comes.
class frmCredits final : public QDialog, public Form
{
    Q_OBJECT

public:
    frmCredits(Program &program, QWidget *owner);
    ~frmCredits() override;

    QWidget *window() override { return this; }

private:
    Program &m_program;
};
