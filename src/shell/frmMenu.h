// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowDrag.h"
#include "forms/Form.h"

#include <QWidget>

#include <array>

class PanelRow;
class Program;
class QLabel;
class QMenu;
class TrayIcon;

/// The main panel: the program's logo and its eight commands, and the same commands in the menu of the tray icon that
/// takes the panel's place while it is minimised. Closing the panel ends the program.
class frmMenu final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmMenu(Program &program);
    ~frmMenu() override;

    /// Lays the panel out for its size.
    void ResizeForm();
    QWidget *window() override { return this; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static constexpr size_t Commands = 8;

    enum class Command
    {
        New,
        NoteStack,
        AllToNoteStack,
        AllToDesktop,
        Save,
        Options,
        Help,
        Exit,
        About,
        Show,
        None
    };

    void makeRows();
    void makeLogo();
    void makeTray();
    void makeGrip();
    void makeShortcuts();
    bool logoKeyPressed(const QKeyEvent &event);
    void layOutLogo(int width);
    void run(Command command);
    void runFromTray(Command command);
    void perform(Command command);
    void openOptions();
    void openAbout();
    void minimised();
    void comeBackWithoutTray();
    void showMenu();
    void showTip();

    Program &m_program;
    WindowDrag m_drag;
    std::array<PanelRow *, Commands> m_rows{};
    QLabel *m_logo = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_about = nullptr;
    QLabel *m_grip = nullptr; // imgResize
    QMenu *m_popup = nullptr; // mnuPopup
    TrayIcon *m_tray = nullptr;
    bool m_pressGuard = false; ///< A command is under way.
    bool m_inTray = false;     ///< Hidden, with the icon as the way back.
};
