// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/NoteAlarm.h"
#include "alarms/NoteFlash.h"
#include "model/clsNoteProps.h"
#include "notes/NoteLayout.h"
#include "notes/NoteToolbar.h"
#include "notes/commands/NoteMenu.h"
#include "drawing/NoteInk.h"
#include "platform/WindowDrag.h"
#include "forms/Form.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class LockOverlay;
class NoteBody;
class NoteMenu;
class NoteTitle;
class Program;
class ResizeHandles;

/// How a note came to be; decides what the factory stamps into its record.
enum class NoteCreateMode
{
    New = 0,
    Move = 1,
    Load = 2
};

/// A note on the desktop: a borderless window that owns its record, shows it, and writes every change of place, size
/// and text back into it. It leaves saving to the shared helpers and the time and the user to what it was given.
class frmNote final : public QWidget, public Form
{
    Q_OBJECT

public:
    explicit frmNote(Program &program);
    ~frmNote() override;

    // For the factory, in this order.
    void InitiateNote(clsNoteProps record);
    void RemoveToolBar();
    void placeAt(const QRect &geometry);
    /// Stores the place where a note without one has opened, so that it opens there again.
    void keepFirstPlace();
    void ApplyNoteAppearance();
    void ApplyNoteState(NoteCreateMode mode);
    void SetFocusToTitleBar();
    /// From now on the note belongs to the user: sizes and places are stored, titles insisted on.
    void setReady();

    void ScrollForm();
    void lockform();
    void ToggleToolbar();
    int heightAfterToggle(int before);
    /// The title that texts about the note use.
    QString title() const;
    QString ShortenString(const QString &text, int maxWidth, const QString &fontName, qreal fontSize) const;

    QWidget *window() override { return this; }
    qint32 Tag() const override { return m_record.Tag; }
    clsNoteProps *GetThisNoteProps() override { return &m_record; }
    void SaveThisNote() override;
    void ToTheNoteStack() override;
    void ThisFormLostFocus() override;
    void Destroy() override;
    void ResetAlarms() override;
    void commitEditing() override;
    void lockNote(qint32) override { lockform(); }
    void recordChanged(qint32 tag) override;
    std::vector<qint32> changedTags() const override;
    void rescue(const std::function<void(const clsNoteProps &)> &write) const override;
    void markUnsaved(qint32 tag) override;
    clsNoteProps *recordOf(qint32 tag) override { return tag == m_record.Tag ? &m_record : nullptr; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    // frmNote.cpp
    void makeTitleBar();
    void connectParts();
    void markChanged() { m_record.SaveTag = 1; }
    void RemoveFromDesktop();
    void beginTextEditing();
    void EndTextEditing();
    void signalAlarm();
    void PlayAlarmSound();
    void showFlash(const QColor &paper);

    // frmNoteCommands.cpp
    NoteMenu *makeMenu(const QString &name, std::span<const MenuEntry> entries);
    void menuCommanded();
    void showMenuState();
    void openShortMenu(QPoint globalPosition);
    void commanded(NoteToolbar::Command command);
    void run(NoteCommand command);
    void openDialog(NoteCommand command);
    void toggleOnTop();
    void paste();
    void print();
    void exitCommanded();
    void deleteNote();
    void unlock();
    /// The title as texts about the note show it.

    // frmNoteDressing.cpp
    void dressColours();
    void dressInk();
    void showTitle();
    void beginTitleEditing();
    void titleEdited(const QString &text);
    void ShowLockLayer(bool locked);
    void UpdateToolbarIcons();

    // frmNoteSize.cpp
    void ScaleNoteControls();
    void LayoutNote();
    void startMove(QPoint globalPosition);
    void endMove();
    void scrollStep();
    void storeSize();
    void storePlace();
    void placeChanged();
    /// Shown, not loading, not closing.
    bool isReady() const;

    Program &m_program;
    clsNoteProps m_record;
    NoteAlarm m_alarm;
    NoteFlash m_flash;
    NoteInk m_ink;
    WindowDrag m_drag;
    QWidget *m_titleBar = nullptr; // fraTitleBar
    NoteTitle *m_title = nullptr;  // lblTitle, txtTitle
    PictureButton *m_menu = nullptr;
    PictureButton *m_exit = nullptr;
    PictureButton *m_minimize = nullptr;
    NoteToolbar *m_toolbar = nullptr;
    NoteBody *m_body = nullptr;
    LockOverlay *m_overlay = nullptr;
    ResizeHandles *m_handles = nullptr;
    QTimer m_placeTimer;             ///< Waits until a window that is being moved has come to rest.
    NoteMenu *m_noteMenu = nullptr;  // mnuPopupIco
    NoteMenu *m_shortMenu = nullptr; // mnuPopup
    bool m_menuOpen = false;
    /// A note too low to give all of the toolbar's height gets back what it gave.
    struct
    {
        int from = 0;
        int to = -1;
    } m_lowered;
    bool m_pressedWhileOpen = false; ///< The press on the menu's picture that closed the menu.
    bool m_locked = false;
    bool m_ready = false;
    bool m_closing = false;
};
