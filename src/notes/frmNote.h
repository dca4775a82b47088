// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/NoteFlash.h"
#include "drawing/NoteInk.h"
#include "forms/Form.h"
#include "notes/NotePlace.h"
#include "notes/NoteToolbar.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteAction.h"
#include "notes/commands/NoteHost.h"
#include "notes/commands/noteMoves.h"

#include <QWidget>

class LockOverlay;
class NoteMenus;
class NoteTitle;
class Program;
class ResizeHandles;

/// A note on the desktop: a borderless window that owns its note, shows it, and writes every change of place, size
/// and text back into its record. It leaves saving to the shared helpers and the time and the user to what it was
/// given.
class frmNote final : public QWidget, public Form, public NoteHost
{
    Q_OBJECT

public:
    frmNote(Program &program, const HomeRules &home);
    ~frmNote() override;

    /// Makes the window that of this note: binds the record, places the window, dresses it. False when the note went
    /// meanwhile: boxes may open while it is dressed, and events run behind them.
    bool become(clsNoteProps record, const QRect &geometry, NoteCreateMode mode, Lid lid);
    void InitiateNote(clsNoteProps record, Lid lid = Lid::AsRecorded);
    void RemoveToolBar() { m_place.removeToolBar(); }
    void ApplyNoteAppearance();
    void ApplyNoteState(NoteCreateMode mode);
    void SetFocusToTitleBar();

    qint32 Tag() const { return m_note.tag(); }
    clsNoteProps *GetThisNoteProps() { return &m_note.record; }
    void SaveThisNote();
    void ToTheNoteStack();
    void ThisFormLostFocus() { TextLostFocus(); }
    void ScrollForm();
    void lockform() { setLocked(Tag(), true); }
    QString ShortenString(const QString &text, int maxWidth, const QString &fontName, qreal fontSize) const;

    // Form
    QWidget *window() override { return this; }
    NoteHolder *holder() override { return this; }
    void Destroy() override;

    // NoteHolder
    std::vector<qint32> tags() const override;
    clsNoteProps recordNow(qint32 tag) override;
    void updateRecords() override;
    void ResetAlarms() override;
    void recordChanged(qint32 tag) override;
    void moveAway(qint32 tag) override;

    // NoteHost
    LiveNote *live(qint32 tag) override { return tag == Tag() ? chosen() : nullptr; }
    LiveNote *chosen() override { return isUnloaded() ? nullptr : &m_note; }
    QWidget &hostWindow() override { return *this; }
    NoteTitle &titleEditor() override { return *m_title; }
    bool isShown(const LiveNote &) const override { return m_place.isReady(); }
    void reveal(qint32 tag) override;
    void showTitle(LiveNote &note) override;
    void showLock(LiveNote &note) override;
    void letGo(qint32 tag) override;
    void runOwn(NoteCommand command) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void makeTitleBar();
    void connectTitleBar();
    void connectNote();
    NoteAction action() { return {m_program, Tag(), m_home, this}; }
    void run(NoteCommand command) { action().run(command); }
    void stopFlashing() { m_flash.StopFlashing(); }
    void EndTextEditing();
    void LayoutNote();
    void dressInk();
    void coloursChanged();
    void startMove(QPoint globalPosition);
    void endMove();
    void scrollStep();
    void ToggleToolbar();
    void toggleOnTop();
    void UpdateToolbarIcons();
    void signalAlarm();
    void comeBack();
    void PlayAlarmSound();
    void showFlash(const QColor &paper);

    const HomeRules &m_home;
    LiveNote m_note;
    NotePlace m_place;
    NoteFlash m_flash{this};
    QWidget *m_titleBar = nullptr; // fraTitleBar
    NoteTitle *m_title = nullptr;  // lblTitle, txtTitle
    PictureButton *m_menu = nullptr;
    PictureButton *m_exit = nullptr;
    PictureButton *m_minimize = nullptr;
    NoteToolbar *m_toolbar = nullptr;
    LockOverlay *m_overlay = nullptr;
    ResizeHandles *m_handles = nullptr;
    NoteMenus *m_menus = nullptr; // mnuPopup, mnuPopupIco
    bool m_closing = false;
};
