// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/frmNote.h"

#include "drawing/colours.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsHiding.h"
#include "notes/ResizeHandles.h"
#include "notes/commands/NoteMenus.h"
#include "notes/commands/noteKeys.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "platform/windowStacking.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

// What the window system tells the desktop note, and what it has of its own: place, size, rolling, stacking.

void frmNote::LayoutNote()
{
    const NoteLayout layout =
        NoteLayout::of(size(), {m_note.record.ToolBarOn, m_note.locked,
                                m_program.twips.toPixels(static_cast<float>(NoteLayout::IconMargin))});
    m_titleBar->setGeometry(layout.titleBar);
    m_menu->setGeometry(layout.menu);
    m_exit->setGeometry(layout.exit);
    m_minimize->setGeometry(layout.minimize);
    m_title->setGeometry(layout.title);
    m_title->setVisible(!layout.title.isEmpty());
    m_toolbar->layOut(layout);
    m_note.body.setGeometry(layout.body);
    m_note.body.setShown(!layout.body.isEmpty() && !m_note.locked);
    m_overlay->setGeometry(layout.password);
    m_handles->layOut(layout);
    m_handles->raise();
    update();
}

void frmNote::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_place.growBack())
        return;
    LayoutNote();
    m_place.changed();
}

void frmNote::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    m_place.changed();
}

void frmNote::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    m_place.settle();
}

void frmNote::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_place.isReady())
        m_note.alarm.ArmNoteAlarm();
    QMetaObject::invokeMethod(
        this, [this] { windowStacking::skipTaskBar(*this); }, Qt::QueuedConnection);
}

void frmNote::closeEvent(QCloseEvent *event)
{
    // A note is deleted on purpose or goes with the program; a window manager's close does neither.
    event->setAccepted(m_closing);
}

void frmNote::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    EndTextEditing();
}

void frmNote::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_menus->openLong();
}

void frmNote::keyPressEvent(QKeyEvent *event)
{
    if (m_place.takeKey(*event))
        return;
    if (event->key() == Qt::Key_F6)
        modForms::activateNext(m_program, *this);
    else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        m_menus->openLong();
    else if (!noteKeys::press(*event, m_note, action()))
        QWidget::keyPressEvent(event);
}

void frmNote::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_place.endKeys();
    if (event->type() == QEvent::PaletteChange && !isUnloaded() && Tag() != 0)
        coloursChanged();
}

/// Some of a note's colours may be those of the desktop.
void frmNote::coloursChanged()
{
    m_note.mixInk();
    m_flash.setNormal(colours::fromLong(m_note.record.BackColor));
    dressInk();
}

void frmNote::runOwn(NoteCommand command)
{
    if (command == NoteCommand::Toolbar)
        ToggleToolbar();
    else if (command == NoteCommand::Scrolled)
        scrollStep();
    else if (command == NoteCommand::OnTop)
        toggleOnTop();
}

void frmNote::reveal(qint32)
{
    modForms::bringBack(m_program, *this);
    show();
    windowStacking::SetForegroundWindow(*this);
}

void frmNote::startMove(QPoint globalPosition)
{
    EndTextEditing();
    m_title->label().setCursor(m_program.pictures().cursor(QStringLiteral("handafter.ico")));
    m_place.drag().press(WindowDrag::HitTest::Caption, globalPosition);
}

void frmNote::endMove()
{
    m_title->label().setCursor(m_program.pictures().cursor(QStringLiteral("handbefore.ico")));
    m_place.endMove();
}

void frmNote::ScrollForm()
{
    m_note.record.FrmScrolledOn = false;
    scrollStep();
}

void frmNote::scrollStep()
{
    m_note.body.commit();
    m_place.roll();
    m_handles->setMode(m_note.record.FrmScrolledOn, m_note.locked);
    if (m_place.isReady())
        SaveThisNote();
}

void frmNote::ToggleToolbar()
{
    m_place.toggleToolbar();
    LayoutNote();
    m_place.storeSize();
    m_note.markChanged();
}

void frmNote::toggleOnTop()
{
    m_note.record.OnTopOn = !m_note.record.OnTopOn;
    windowStacking::SetWindowOnTop(*this, m_note.record.OnTopOn);
    m_note.markChanged();
}
