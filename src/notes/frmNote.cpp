// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/frmNote.h"

#include "notes/commands/noteEditing.h"
#include "notes/commands/noteTitles.h"
#include "notes/ResizeHandles.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteBody.h"
#include "notes/parts/NoteTitle.h"
#include "drawing/textShortening.h"
#include "drawing/colours.h"
#include "platform/SystemSound.h"
#include "platform/windowStacking.h"
#include "security/noteLocks.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QMouseEvent>
#include <QPainter>

using namespace std::chrono_literals;

namespace
{
constexpr auto PlaceSettles = 300ms;
} // namespace

frmNote::frmNote(Program &program)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), Form(program.forms, formNames::Note.toString()),
      m_program(program), m_alarm(program, [this] { return isUnloaded() ? nullptr : &m_record; }), m_drag(*this),
      m_body(new NoteBody(this)), m_overlay(new LockOverlay(this)), m_handles(new ResizeHandles(this, m_drag))
{
    setObjectName(formName());
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    // In this order the Tab key goes through them.
    makeTitleBar();
    m_toolbar = new NoteToolbar(program.pictures(), this);
    m_placeTimer.setSingleShot(true);
    m_placeTimer.setInterval(PlaceSettles);
    m_drag.setLimits(NoteLayout::smallestSize(), false);
    connectParts();
}

frmNote::~frmNote() = default;

void frmNote::makeTitleBar()
{
    m_titleBar = new QWidget(this);
    m_titleBar->setObjectName(QStringLiteral("fraTitleBar"));
    m_title = new NoteTitle(m_titleBar);
    m_title->label().setCursor(m_program.pictures().cursor(QStringLiteral("handbefore.ico")));
    m_menu = new PictureButton(m_program.pictures(), QStringLiteral("imgMenu"), m_titleBar);
    m_menu->setPictures(QStringLiteral("menuup.gif"), QStringLiteral("menudown.gif"));
    m_menu->setCaption(tr("Menu"));
    m_menu->setCommandsOnRelease(true);
    m_minimize = new PictureButton(m_program.pictures(), QStringLiteral("imgMinimize"), m_titleBar);
    m_minimize->setPictures(QStringLiteral("minimizeup.gif"), QStringLiteral("closeactive.gif"));
    m_minimize->setCaption(tr("Delete"));
    m_exit = new PictureButton(m_program.pictures(), QStringLiteral("imgExit"), m_titleBar);
    m_exit->setPictures(QStringLiteral("closeup.gif"), QStringLiteral("closeactive.gif"));
    m_exit->setCaption(tr("To NoteStack"));
}

void frmNote::connectParts()
{
    connect(&m_title->label(), &TitleLabel::pressed, this, &frmNote::startMove);
    connect(&m_title->label(), &TitleLabel::dragged, this, [this](QPoint at) { m_drag.move(at); });
    connect(&m_title->label(), &TitleLabel::released, this, &frmNote::endMove);
    connect(&m_title->label(), &TitleLabel::doubleClicked, this, &frmNote::scrollStep);
    connect(m_title, &NoteTitle::edited, this, &frmNote::titleEdited);
    connect(m_menu, &PictureButton::pressedDown, this, [this] { m_pressedWhileOpen = m_menuOpen; });
    connect(m_menu, &PictureButton::commanded, this, &frmNote::menuCommanded);
    connect(m_minimize, &PictureButton::commanded, this, &frmNote::deleteNote);
    connect(m_exit, &PictureButton::commanded, this, &frmNote::exitCommanded);
    connect(m_toolbar, &NoteToolbar::commanded, this,
            [this](int index) { commanded(static_cast<NoteToolbar::Command>(index)); });
    connect(m_toolbar, &NoteToolbar::clickedElsewhere, this, &frmNote::EndTextEditing);
    connect(m_body, &NoteBody::textPressed, this, [this](Qt::MouseButton button, QPoint at) {
        if (button == Qt::LeftButton)
            beginTextEditing();
        else
            openShortMenu(at);
    });
    connect(m_body, &NoteBody::editingChanged, m_toolbar, &NoteToolbar::setEditing);
    connect(m_body, &NoteBody::committed, this, [this](const QString &text) {
        if (!m_locked)
            m_record.Data = text;
        markChanged();
    });
    connect(m_overlay, &LockOverlay::clicked, this, &frmNote::unlock);
    connect(m_handles, &ResizeHandles::sized, this, [this] {
        storeSize();
        storePlace();
    });
    connect(&m_alarm, &NoteAlarm::armedChanged, this, &frmNote::UpdateToolbarIcons);
    connect(&m_alarm, &NoteAlarm::fired, this, &frmNote::signalAlarm);
    connect(&m_flash, &NoteFlash::colourChanged, this, &frmNote::showFlash);
    connect(&m_flash, &NoteFlash::raiseWanted, this, [this] {
        if (!m_record.OnTopOn)
            windowStacking::bringForward(*this);
    });
    connect(&m_placeTimer, &QTimer::timeout, this, &frmNote::storePlace);
}

void frmNote::InitiateNote(clsNoteProps record)
{
    m_record = std::move(record);
    // Before anything is shown of it: boxes may open while the note is dressed.
    m_locked = noteLocks::opensLocked(m_record);
    modForms::HookWindow(m_program.forms, *this);
    m_toolbar->setDate(m_record.DateCreated);
    ScaleNoteControls();
    UpdateToolbarIcons();
}

QString frmNote::title() const
{
    return noteTitles::title(m_record);
}

QString frmNote::ShortenString(const QString &text, int maxWidth, const QString &fontName, qreal fontSize) const
{
    QFont measured = font();
    measured.setFamily(fontName);
    measured.setPointSizeF(fontSize);
    return textShortening::shortened(text, maxWidth, measured);
}

void frmNote::SaveThisNote()
{
    if (m_placeTimer.isActive())
        storePlace();
    modForms::saveNote(m_program, m_record);
}

std::vector<qint32> frmNote::changedTags() const
{
    return m_record.SaveTag == 1 ? std::vector{m_record.Tag} : std::vector<qint32>();
}

void frmNote::rescue(const std::function<void(const clsNoteProps &)> &write) const
{
    clsNoteProps record = m_record;
    if (m_body->isEditing())
        record.Data = m_body->typedText();
    if (m_record.SaveTag == 1 || m_body->isEditing())
        write(record);
}

void frmNote::markUnsaved(qint32 tag)
{
    if (tag == m_record.Tag)
        markChanged();
}

void frmNote::commitEditing()
{
    m_title->commitQuietly();
    m_body->commit();
}

void frmNote::ThisFormLostFocus()
{
    m_body->commit();
}

void frmNote::Destroy()
{
    m_closing = true;
    m_placeTimer.stop();
    m_flash.StopFlashing();
    m_alarm.Destroy();
    m_title->giveUp();
    modForms::UnhookWindow(*this);
}

void frmNote::RemoveFromDesktop()
{
    m_body->commit();
    Destroy();
    modForms::removeNote(m_program, m_record);
    unload();
}

void frmNote::beginTextEditing()
{
    m_flash.StopFlashing();
    const QPointer<frmNote> self = this;
    if (m_locked || m_body->isEditing())
        return;
    if (!noteEditing::mayEdit(m_program, m_record, this) || self == nullptr || m_locked || isUnloaded())
        return;
    activateWindow();
    m_body->BeginTextEditing(m_record.Data);
}

void frmNote::EndTextEditing()
{
    m_body->commit();
    m_flash.StopFlashing();
}

void frmNote::ResetAlarms()
{
    m_alarm.ArmNoteAlarm();
}

void frmNote::signalAlarm()
{
    if (m_record.FlashOn)
        m_flash.StartFlashing(colours::fromLong(m_record.BackColor));
    if (m_record.SoundFileOn)
        PlayAlarmSound();
}

void frmNote::PlayAlarmSound()
{
    m_program.sound().play(m_record.SoundFile);
}

/// The colours of the record stay as they are; only what is seen alternates, with a text that can be read on both.
void frmNote::showFlash(const QColor &paper)
{
    const bool isOwn = paper == colours::fromLong(m_record.BackColor);
    m_ink = NoteInk::from(colours::toLong(paper), isOwn ? m_record.ForeColor : colours::SystemText);
    dressInk();
}

void frmNote::recordChanged(qint32)
{
    m_flash.StopFlashing();
    const QPointer<frmNote> self = this;
    ApplyNoteAppearance();
    if (self == nullptr || isUnloaded())
        return;
    UpdateToolbarIcons();
    m_alarm.ArmNoteAlarm();
}

void frmNote::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    EndTextEditing();
}

void frmNote::closeEvent(QCloseEvent *event)
{
    // A note is deleted on purpose or goes with the program; a window manager's close does neither.
    event->setAccepted(m_closing);
}

void frmNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int titleHeight = NoteLayout::rolledHeight();
    painter.fillRect(rect(), m_ink.paper);
    painter.fillRect(QRect(0, 0, width(), titleHeight), m_ink.titleStrip);
    if (height() > titleHeight + 1)
        painter.fillRect(QRect(0, titleHeight, width(), 1), m_ink.titleLine);
    if (m_toolbar->isVisible())
        painter.fillRect(QRect(0, m_toolbar->geometry().bottom() + 1, width(), 1), m_ink.toolLine);
    // Rectangles, not lines: a line of a pen would lie beside the edge at other scales than 1.
    for (const QRect &edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                              QRect(width() - 1, 0, 1, height())})
        painter.fillRect(edge, m_ink.outline);
}
