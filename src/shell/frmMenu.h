// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/common/Form.h"

#include <QWidget>

#include <array>
#include <functional>

class PanelRow;
class Program;
class QLabel;

/// The main panel: the program's logo and its eight commands. Closing it ends the program.
class frmMenu final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmMenu(Program &program);

    /// Lays the panel out for its size.
    void ResizeForm();
    QWidget *window() override { return this; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    static constexpr size_t Commands = 8;

    void makeRows();
    void makeLogo();
    void run(const std::function<void()> &command);

    Program &m_program;
    std::array<PanelRow *, Commands> m_rows{};
    QLabel *m_logo = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_about = nullptr;
    bool m_pressGuard = false; ///< A button's command is under way.
};
