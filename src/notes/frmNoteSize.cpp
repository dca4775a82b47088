// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteBody.h"
#include "notes/ResizeHandles.h"
#include "notes/frmNote.h"
#include "notes/parts/NoteTitle.h"
#include "platform/displayPlatform.h"
#include "platform/windowStacking.h"
#include "forms/Program.h"

#include <QMoveEvent>

#include <cmath>

bool frmNote::isReady() const
{
    return m_ready && !m_closing && !m_program.file.LoadingData;
}

void frmNote::setReady()
{
    m_ready = true;
}

/// Controls are laid out in pixels; what is left to scale is the size that a note has before its record is applied.
void frmNote::ScaleNoteControls()
{
    resize(Twips::design(NoteLayout::DefaultWidth), Twips::design(NoteLayout::DefaultHeight));
}

void frmNote::placeAt(const QRect &geometry)
{
    resize(geometry.size());
    if (!displayPlatform::hidesPlaces())
        move(geometry.topLeft());
}

void frmNote::keepFirstPlace()
{
    if (m_record.FrmLeft == 0.0F && m_record.FrmTop == 0.0F && !displayPlatform::hidesPlaces()) {
        m_record.FrmLeft = m_program.twips.fromPixels(x());
        m_record.FrmTop = m_program.twips.fromPixels(y());
    }
}

void frmNote::RemoveToolBar()
{
    m_toolbar->hide();
    resize(width(), qMax(NoteLayout::smallestSize().height(), height() - NoteLayout::toolbarShare()));
}

void frmNote::LayoutNote()
{
    const NoteLayout layout = NoteLayout::of(
        size(), {m_record.ToolBarOn, m_locked, m_program.twips.toPixels(static_cast<float>(NoteLayout::IconMargin))});
    m_titleBar->setGeometry(layout.titleBar);
    m_menu->setGeometry(layout.menu);
    m_exit->setGeometry(layout.exit);
    m_minimize->setGeometry(layout.minimize);
    m_title->setGeometry(layout.title);
    m_title->setVisible(!layout.title.isEmpty());
    m_toolbar->layOut(layout);
    m_body->setGeometry(layout.body);
    m_body->setShown(!layout.body.isEmpty() && !m_locked);
    m_overlay->setGeometry(layout.password);
    m_handles->layOut(layout);
    m_handles->raise();
    update();
}

void frmNote::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QSize smallest = NoteLayout::smallestSize();
    const int least = m_record.FrmScrolledOn ? NoteLayout::rolledHeight() : smallest.height();
    if (width() < smallest.width() || height() < least) {
        resize(qMax(width(), smallest.width()), qMax(height(), least));
        return;
    }
    LayoutNote();
    placeChanged();
}

void frmNote::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    placeChanged();
}

void frmNote::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    if (m_drag.settle())
        storePlace();
}

/// A window manager moves windows for reasons of its own, at a change of screens above all; only what happens to the
/// note that the user is at is the user's doing.
void frmNote::placeChanged()
{
    if (isReady() && isVisible() && (isActiveWindow() || m_drag.isActive()))
        m_placeTimer.start();
}

void frmNote::startMove(QPoint globalPosition)
{
    EndTextEditing();
    m_title->label().setCursor(m_program.pictures().cursor(QStringLiteral("handafter.ico")));
    m_drag.press(WindowDrag::HitTest::Caption, globalPosition);
}

void frmNote::endMove()
{
    m_title->label().setCursor(m_program.pictures().cursor(QStringLiteral("handbefore.ico")));
    if (m_drag.release())
        storePlace();
}

void frmNote::storePlace()
{
    m_placeTimer.stop();
    if (!isReady())
        return;
    storeSize();
    if (displayPlatform::hidesPlaces())
        return;
    const Twips &twips = m_program.twips;
    if (twips.toPixels(m_record.FrmLeft) == x() && twips.toPixels(m_record.FrmTop) == y())
        return;
    m_record.FrmLeft = twips.fromPixels(x());
    m_record.FrmTop = twips.fromPixels(y());
    markChanged();
}

void frmNote::storeSize()
{
    const Twips &twips = m_program.twips;
    if (!isReady() || (twips.toPixels(m_record.FrmWidth) == width() && twips.toPixels(m_record.FrmHeight) == height()))
        return;
    m_record.FrmWidth = twips.fromPixels(width());
    m_record.FrmHeight = twips.fromPixels(height());
    markChanged();
}

void frmNote::ScrollForm()
{
    m_record.FrmScrolledOn = false;
    scrollStep();
}

/// Rolls up or down. While a note is being dressed its stored heights stay as they are.
void frmNote::scrollStep()
{
    const bool up = !m_record.FrmScrolledOn;
    const Twips &twips = m_program.twips;
    m_body->commit();
    m_record.FrmScrolledOn = up;
    m_drag.setLimits(
        up ? QSize(NoteLayout::smallestSize().width(), NoteLayout::rolledHeight()) : NoteLayout::smallestSize(), up);
    m_handles->setMode(up, m_locked);
    if (up) {
        if (isReady())
            m_record.FrmHeightBefore = twips.fromPixels(height());
        resize(width(), NoteLayout::rolledHeight());
    } else {
        const int before = twips.toPixels(m_record.FrmHeightBefore);
        const int usual = twips.toPixels(m_program.ProgramOptions.FrmHeight);
        resize(width(), before > NoteLayout::rolledHeight() ? qMin(before, maximumHeight()) : usual);
    }
    if (!isReady())
        return;
    storeSize();
    markChanged();
    SaveThisNote();
}

/// Of a note whose toolbar is switched on or off.
int frmNote::heightAfterToggle(int before)
{
    if (m_record.ToolBarOn)
        return before == m_lowered.to ? m_lowered.from : before + NoteLayout::toolbarShare();
    const int after = qMax(NoteLayout::smallestSize().height(), before - NoteLayout::toolbarShare());
    m_lowered = {before, after};
    return after;
}

void frmNote::ToggleToolbar()
{
    m_record.ToolBarOn = !m_record.ToolBarOn;
    const Twips &twips = m_program.twips;
    const int unrolled = twips.toPixels(m_record.FrmHeightBefore);
    if (!m_record.FrmScrolledOn)
        resize(width(), heightAfterToggle(height()));
    else if (unrolled > NoteLayout::rolledHeight())
        m_record.FrmHeightBefore = twips.fromPixels(heightAfterToggle(unrolled));
    LayoutNote();
    storeSize();
    markChanged();
}

void frmNote::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QMetaObject::invokeMethod(
        this, [this] { windowStacking::skipTaskBar(*this); }, Qt::QueuedConnection);
}
