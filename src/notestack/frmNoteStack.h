// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "notes/commands/NoteMenu.h"
#include "notestack/StackToolbar.h"
#include "platform/WindowDrag.h"
#include "forms/Form.h"

#include <QWidget>

#include <memory>
#include <optional>

class LockOverlay;
class NoteTabs;
class NoteTitle;
class Program;
class QToolButton;
class StackPage;
struct StackNote;

/// The one window that keeps notes as tabs. A note here is a record with a body of its own, of which only that of the
/// chosen tab is shown. Notes are found by their tag whenever events may have run; tabs are numbered from 0.
class frmNoteStack final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmNoteStack(Program &program);
    ~frmNoteStack() override;

    void Initialize();
    /// The record of the new last tab, which is chosen; the result is its index.
    int AddANote(const clsNoteProps &note) override;
    /// A new tab for a note that was a window; shows the NoteStack.
    void AddFrmNote(const clsNoteProps &note);
    /// Shows either the empty state or the chosen note.
    void SetActivatedForm();
    void ShowNewTitle();
    /// Takes a note, the chosen one for -1, out of the data file and its tab away.
    void DeleteThisNote(int index);
    void lockform(int index);
    /// The window was open when the program last ended.
    static bool wasShown(const Program &program);
    /// After the load: the order of the tabs, and the chosen one, as they were left.
    void restoreOrder();

    QWidget *window() override { return this; }
    int NumOfQuillets() const override;
    int noteCount() const override;
    void SaveThisStackSys() override;
    void SaveThisStack(const std::function<bool(int)> &goOn) override;
    void TransferAllToDesktop() override;
    void showStack() override;
    void TextLostFocus() override;
    void Destroy() override;
    void ResetAlarms() override;
    void keepPlace() override;
    void commitEditing() override;
    std::vector<qint32> changedTags() const override;
    void rescue(const std::function<void(const clsNoteProps &)> &write) const override;
    void markUnsaved(qint32 tag) override;
    clsNoteProps *recordOf(qint32 tag) override;
    void lockNote(qint32 tag) override;
    void recordChanged(qint32 tag) override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // frmNoteStack.cpp
    void ScaleNoteStack();
    void makeParts();
    void makeShortcuts();
    void connectParts();
    void layOut();
    void hideStack();
    void restorePlace();

    // frmNoteStackTabs.cpp
    bool isEmpty() const { return m_notes.empty(); }
    std::optional<size_t> indexOf(qint32 tag) const;
    StackNote *chosen() const;
    StackNote *noteAt(int index) const;
    void tabChosen();
    void showChosen();
    void showEmpty();
    void dressPage(const StackNote &note);
    void ApplyTabAppearance(StackNote &note);
    void ApplyTabState(StackNote &note);
    void ArmTabAlarm(StackNote &note);
    void showTitle(StackNote &note);
    void removeTab(size_t index);
    void renumber(size_t from);
    void ShowLockLayer(StackNote &note, bool locked);
    void showTabList();
    void connectBody(StackNote &note);

    // frmNoteStackCommands.cpp
    void toolbarCommanded(StackToolbar::Command command);
    void run(NoteCommand command);
    void runOn(StackNote &note, NoteCommand command);
    bool refusesLocked(const StackNote &note);
    void openDialog(const StackNote &note, NoteCommand command);
    void addNew();
    void menuCommanded();
    void showMenuState(const StackNote &note);
    void openShortMenu(QPoint globalPosition);
    NoteMenu *makeMenu(const QString &name, std::span<const MenuEntry> entries);
    void beginTextEditing(StackNote &note);
    void editTitle();
    void titleEdited(const QString &text);
    void deleteNote(qint32 tag);
    void print(StackNote &note);
    void paste(StackNote &note);
    void unlock();
    void toDesktop(qint32 tag);
    void AlarmCont(qint32 tag);

    Program &m_program;
    std::vector<std::unique_ptr<StackNote>> m_notes;
    WindowDrag m_drag;
    NoteTabs *m_tabs = nullptr;        // tabNotes
    QToolButton *m_list = nullptr;     // cmdTabList
    StackPage *m_page = nullptr;       // fraPage
    QWidget *m_titleBar = nullptr;     // fraTitleBar
    NoteTitle *m_title = nullptr;      // lblTitle, txtTitle
    PictureButton *m_menu = nullptr;   // imgMenu
    PictureButton *m_exit = nullptr;   // imgExit
    StackToolbar *m_toolbar = nullptr; // fraToolBar
    LockOverlay *m_overlay = nullptr;  // fraPassword
    QWidget *m_empty = nullptr;        // fraEmpty, lblEmpty
    QLabel *m_grip = nullptr;          // imgResize
    NoteMenu *m_noteMenu = nullptr;    // mnuPopup2
    NoteMenu *m_shortMenu = nullptr;   // mnuPopup
    bool m_menuOpen = false;
    bool m_pressedWhileOpen = false;
    bool m_closing = false;
    qint32 m_titleTag = 0; ///< Note whose title is being edited.
};
