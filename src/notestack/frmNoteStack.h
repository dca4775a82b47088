// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"
#include "model/windowState.h"
#include "notes/commands/NoteHost.h"
#include "notestack/StackToolbar.h"
#include "platform/WindowDrag.h"

#include <QWidget>

#include <memory>

class LockOverlay;
class NoteAction;
class NoteMenus;
class NoteTabs;
class NoteTitle;
class Program;
class QToolButton;
class SizeGrip;
class StackPage;
class TabbedNotes;
struct NoteInk;

/// The one window that keeps notes as tabs. A note here is a record with a body of its own, of which only that of the
/// chosen tab is shown. Notes are found by their tag whenever events may have run; tabs are numbered from 0.
class frmNoteStack final : public QWidget, public Form, public NoteHost, public StackHolder
{
    Q_OBJECT

public:
    explicit frmNoteStack(Program &program);
    ~frmNoteStack() override;

    void Initialize();
    /// A new tab for a note that was a window; shows the NoteStack.
    void AddFrmNote(const clsNoteProps &note);
    /// Shows either the empty state or the chosen note.
    void SetActivatedForm();
    void ShowNewTitle();
    /// Takes a note, the chosen one for -1, out of the data file and its tab away.
    void DeleteThisNote(int index);
    void lockform(int index);
    /// Tabs; 1 while there is no note.
    int NumOfQuillets() const;
    int noteCount() const;
    void SaveThisStackSys();
    /// The window was open when the program last ended.
    static bool wasShown(const Program &program);
    /// After the load: the order of the tabs, and the chosen one, as they were left.
    void restoreOrder();

    // Form
    QWidget *window() override { return this; }
    NoteHolder *holder() override { return this; }
    void keepPlace() override;
    void Destroy() override;

    // StackHolder
    int AddANote(const clsNoteProps &note, Lid lid = Lid::AsRecorded) override;
    void keepOrder() override;
    void arrange(const std::vector<qint32> &order, qint32 shown) override;
    void TransferAllToDesktop() override;
    void showStack() override;

    // NoteHolder
    std::vector<qint32> tags() const override;
    void ResetAlarms() override;
    void recordChanged(qint32 tag) override;
    void moveAway(qint32 tag) override;

    // NoteHost
    LiveNote *live(qint32 tag) override;
    LiveNote *chosen() override;
    QWidget &hostWindow() override { return *this; }
    NoteTitle &titleEditor() override { return *m_title; }
    bool isShown(const LiveNote &note) const override;
    void reveal(qint32 tag) override;
    void showTitle(LiveNote &note) override;
    void showLock(LiveNote &note) override;
    void letGo(qint32 tag) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    // frmNoteStack.cpp
    void makeParts();
    void makeTitleBar();
    void connectParts();
    void makeShortcuts();
    void ScaleNoteStack();
    void layOut();
    void hideStack();
    void restorePlace();
    void keep(const WindowState &now);
    void showTabList();

    // frmNoteStackCommands.cpp
    NoteAction action();
    void run(NoteCommand command);
    void toolbarCommanded(StackToolbar::Command command);
    void AlarmCont(qint32 tag);

    // frmNoteStackNotes.cpp
    void connectNote(LiveNote &note);
    void tabChosen();
    void showChosen();
    void showEmpty();
    void dressPage(const NoteInk &ink);
    void ApplyTabAppearance(LiveNote &note);
    void ApplyTabState(LiveNote &note);
    void ArmTabAlarm(LiveNote &note);

    WindowDrag m_drag;
    NoteTabs *m_tabs = nullptr; // tabNotes
    std::unique_ptr<TabbedNotes> m_notes;
    QToolButton *m_list = nullptr;     // cmdTabList
    StackPage *m_page = nullptr;       // fraPage
    QWidget *m_titleBar = nullptr;     // fraTitleBar
    NoteTitle *m_title = nullptr;      // lblTitle, txtTitle
    PictureButton *m_menu = nullptr;   // imgMenu
    PictureButton *m_exit = nullptr;   // imgExit
    StackToolbar *m_toolbar = nullptr; // fraToolBar
    LockOverlay *m_overlay = nullptr;  // fraPassword
    QWidget *m_empty = nullptr;        // fraEmpty, lblEmpty
    SizeGrip *m_grip = nullptr;        // imgResize
    NoteMenus *m_menus = nullptr;      // mnuPopup, mnuPopup2
    bool m_closing = false;
    WindowState m_kept; ///< As it was last read or written.
};
