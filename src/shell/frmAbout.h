// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QDialog>

class Program;

/// Tells what the program is and leads to the credits.
class frmAbout final : public QDialog, public Form
{
    Q_OBJECT

public:
    frmAbout(Program &program, QWidget *owner);
    ~frmAbout() override;

    QWidget *window() override { return this; }

private:
    QWidget *makeHead();
    QWidget *makeButtons();
    void showCredits();

    Program &m_program;
};
