// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NotePlace.h"

#include "forms/Program.h"
#include "forms/modFormsJournal.h"
#include "notes/NoteLayout.h"
#include "notes/commands/LiveNote.h"
#include "platform/displayPlatform.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

using namespace std::chrono_literals;

namespace
{

constexpr auto PlaceSettles = 300ms;
constexpr int KeyStep = 10;
constexpr int LeastSeen = 24; ///< Of the title bar, so that it can be reached by the mouse too.

QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-KeyStep, 0};
    case Qt::Key_Right:
        return {KeyStep, 0};
    case Qt::Key_Up:
        return {0, -KeyStep};
    case Qt::Key_Down:
        return {0, KeyStep};
    default:
        return {};
    }
}

bool isReachable(const QRect &titleBar)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&titleBar](const QScreen *screen) {
        const QRect seen = screen->availableGeometry().intersected(titleBar);
        return seen.width() >= LeastSeen && seen.height() >= titleBar.height() / 2;
    });
}

} // namespace

NotePlace::NotePlace(Program &program, QWidget &window, LiveNote &note)
    : m_program(program), m_window(window), m_note(note), m_drag(window)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(PlaceSettles);
    m_drag.setLimits(NoteLayout::smallestSize(), WindowDrag::Height::Free);
    connect(&m_settling, &QTimer::timeout, this, &NotePlace::storePlace);
}

void NotePlace::close()
{
    m_closing = true;
    m_settling.stop();
}

bool NotePlace::isReady() const
{
    return m_ready && !m_closing && !m_program.file.LoadingData;
}

void NotePlace::placeAt(const QRect &geometry)
{
    m_window.resize(geometry.size());
    if (!displayPlatform::hidesPlaces())
        m_window.move(geometry.topLeft());
}

void NotePlace::keepFirstPlace()
{
    clsNoteProps &record = m_note.record;
    if (record.FrmLeft == 0.0F && record.FrmTop == 0.0F && !displayPlatform::hidesPlaces()) {
        record.FrmLeft = m_program.twips.fromPixels(m_window.x());
        record.FrmTop = m_program.twips.fromPixels(m_window.y());
    }
}

void NotePlace::removeToolBar()
{
    m_window.resize(m_window.width(),
                    qMax(NoteLayout::smallestSize().height(), m_window.height() - NoteLayout::toolbarShare()));
}

bool NotePlace::growBack()
{
    const QSize smallest = NoteLayout::smallestSize();
    const int least = m_note.record.FrmScrolledOn ? NoteLayout::rolledHeight() : smallest.height();
    if (m_window.width() >= smallest.width() && m_window.height() >= least)
        return false;
    m_window.resize(qMax(m_window.width(), smallest.width()), qMax(m_window.height(), least));
    return true;
}

/// A window manager moves windows for reasons of its own, at a change of screens above all; only what happens to the
/// note that the user is at is the user's doing.
void NotePlace::changed()
{
    if (isReady() && m_window.isVisible() && (m_window.isActiveWindow() || m_drag.isActive())) {
        m_settling.start();
        modForms::armJournal(m_program);
    }
}

void NotePlace::settle()
{
    if (m_drag.settle())
        storePlace();
}

void NotePlace::endMove()
{
    if (m_drag.release())
        storePlace();
}

void NotePlace::step(WindowDrag::HitTest held, QPoint by)
{
    if (!m_beforeKeys)
        m_beforeKeys = m_window.geometry();
    m_drag.press(held, {});
    m_drag.move(by);
    endMove();
}

bool NotePlace::takeKey(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const QPoint by = stepOf(key.key());
    if (key.key() == Qt::Key_Escape && m_beforeKeys) {
        m_window.setGeometry(*std::exchange(m_beforeKeys, std::nullopt));
        storePlace();
        return true;
    }
    if (by.isNull() || (modifiers != Qt::ControlModifier && modifiers != Qt::ShiftModifier)) {
        if (key.key() != Qt::Key_Control && key.key() != Qt::Key_Shift)
            endKeys();
        return false;
    }
    const QRect titleBar(m_window.pos() + by, QSize(m_window.width(), NoteLayout::rolledHeight()));
    if (modifiers == Qt::ShiftModifier && !m_note.locked)
        step(WindowDrag::HitTest::BottomRight, by);
    else if (modifiers == Qt::ControlModifier && !displayPlatform::hidesPlaces() && isReachable(titleBar))
        step(WindowDrag::HitTest::Caption, by);
    return true;
}

void NotePlace::storePlace()
{
    m_settling.stop();
    if (!isReady())
        return;
    storeSize();
    if (displayPlatform::hidesPlaces())
        return;
    const Twips &twips = m_program.twips;
    clsNoteProps &record = m_note.record;
    if (twips.toPixels(record.FrmLeft) == m_window.x() && twips.toPixels(record.FrmTop) == m_window.y())
        return;
    record.FrmLeft = twips.fromPixels(m_window.x());
    record.FrmTop = twips.fromPixels(m_window.y());
    m_note.markChanged();
}

void NotePlace::storeSize()
{
    const Twips &twips = m_program.twips;
    clsNoteProps &record = m_note.record;
    if (!isReady() ||
        (twips.toPixels(record.FrmWidth) == m_window.width() && twips.toPixels(record.FrmHeight) == m_window.height()))
        return;
    record.FrmWidth = twips.fromPixels(m_window.width());
    record.FrmHeight = twips.fromPixels(m_window.height());
    m_note.markChanged();
}

void NotePlace::storeSettling()
{
    if (m_settling.isActive())
        storePlace();
}

void NotePlace::roll()
{
    clsNoteProps &record = m_note.record;
    const bool up = !record.FrmScrolledOn;
    const Twips &twips = m_program.twips;
    record.FrmScrolledOn = up;
    m_drag.setLimits(up ? QSize(NoteLayout::smallestSize().width(), NoteLayout::rolledHeight())
                        : NoteLayout::smallestSize(),
                     up ? WindowDrag::Height::Fixed : WindowDrag::Height::Free);
    if (up) {
        if (isReady())
            record.FrmHeightBefore = twips.fromPixels(m_window.height());
        m_window.resize(m_window.width(), NoteLayout::rolledHeight());
    } else {
        const int before = twips.toPixels(record.FrmHeightBefore);
        const int usual = twips.toPixels(m_program.ProgramOptions.FrmHeight);
        m_window.resize(m_window.width(),
                        before > NoteLayout::rolledHeight() ? qMin(before, m_window.maximumHeight()) : usual);
    }
    if (!isReady())
        return;
    storeSize();
    m_note.markChanged();
}

/// Of a note whose toolbar is switched on or off.
int NotePlace::heightAfterToggle(int before)
{
    if (m_note.record.ToolBarOn)
        return before == m_lowered.to ? m_lowered.from : before + NoteLayout::toolbarShare();
    const int after = qMax(NoteLayout::smallestSize().height(), before - NoteLayout::toolbarShare());
    m_lowered = {before, after};
    return after;
}

void NotePlace::toggleToolbar()
{
    clsNoteProps &record = m_note.record;
    record.ToolBarOn = !record.ToolBarOn;
    const Twips &twips = m_program.twips;
    const int unrolled = twips.toPixels(record.FrmHeightBefore);
    if (!record.FrmScrolledOn)
        m_window.resize(m_window.width(), heightAfterToggle(m_window.height()));
    else if (unrolled > NoteLayout::rolledHeight())
        record.FrmHeightBefore = twips.fromPixels(heightAfterToggle(unrolled));
}
