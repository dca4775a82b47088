// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "platform/WindowDrag.h"
#include "shell/PanelCommand.h"

#include <QWidget>

#include <array>

class GlobalKeys;
class PanelLogo;
class PanelRow;
class Program;
class QLabel;
class ReceivedLine;
class ReceivedNotes;
class SizeGrip;
class TrayMenu;

/// The main panel: the program's logo and its eight commands, and the same commands in the menu of the tray icon that
/// takes the panel's place while it is minimised. Closing the panel ends the program.
class frmMenu final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmMenu(Program &program);
    ~frmMenu() override;

    /// Lets the desktop command what the tray can; from now on, when all notes are there.
    void answerDesktop();
    /// Lays the panel out for its size.
    void ResizeForm();
    /// Notes of other computers are received from now on.
    void startReceiving();
    QWidget *window() override { return this; }
    void keepPlace() override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    static constexpr size_t Commands = 8;

    void makeRows();
    void makeLogo();
    void makeTray();
    void makeGrip();
    void dressGrip();
    void makeShortcuts();
    void makeReceived();
    void layOutLogo(int width);
    void run(PanelCommand command);
    void runInPlace(PanelCommand command);
    void openPanelMenu(QPoint where);
    void runFromKeys(PanelCommand command);
    void runFromTray(PanelCommand command);
    void refuse(QWidget &modal);
    void grabKeys();
    void perform(PanelCommand command);
    void importFiles(const QStringList &paths);
    void openOptions();
    void openAbout();
    void minimised();
    void comeBackWithoutTray();
    void showMenu();
    void showTip();

    Program &m_program;
    WindowDrag m_drag;
    std::array<PanelRow *, Commands> m_rows{};
    PanelLogo *m_logo = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_about = nullptr;
    SizeGrip *m_grip = nullptr; // imgResize
    TrayMenu *m_tray = nullptr;
    GlobalKeys *m_keys = nullptr;
    ReceivedNotes *m_received;
    ReceivedLine *m_receivedLine = nullptr;
    bool m_refusing = false;   ///< The box of a refused command is open.
    bool m_pressGuard = false; ///< A command is under way.
    bool m_inTray = false;     ///< Hidden, with the icon as the way back.
};
