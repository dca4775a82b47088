// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/frmNote.h"

#include "drawing/colours.h"
#include "drawing/textShortening.h"
#include "forms/Program.h"
#include "forms/modForms.h"
#include "forms/modFormsJournal.h"
#include "forms/modFormsSaving.h"
#include "notes/ResizeHandles.h"
#include "notes/commands/NoteMenus.h"
#include "notes/commands/noteDressing.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "platform/windowStacking.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

frmNote::frmNote(Program &program, const HomeRules &home)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), Form(program.forms, formNames::Note.toString()),
      NoteHost(program), m_home(home), m_note(program, this), m_place(program, *this, m_note),
      m_overlay(new LockOverlay(this)), m_handles(new ResizeHandles(this, m_place.drag()))
{
    setObjectName(formName());
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    // In this order the Tab key goes through them.
    makeTitleBar();
    m_toolbar = new NoteToolbar(program.pictures(), this);
    m_menus = new NoteMenus(*this, home, *m_menu, Twips::design(NoteLayout::MenuDrop));
    connectTitleBar();
    connectNote();
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

void frmNote::connectTitleBar()
{
    connect(&m_title->label(), &TitleLabel::pressed, this, &frmNote::startMove);
    connect(&m_title->label(), &TitleLabel::dragged, this, [this](QPoint at) { m_place.drag().move(at); });
    connect(&m_title->label(), &TitleLabel::released, this, &frmNote::endMove);
    connect(&m_title->label(), &TitleLabel::doubleClicked, this, &frmNote::scrollStep);
    connect(m_title, &NoteTitle::typed, this, [this] { modForms::armJournal(m_program); });
    connect(m_title, &NoteTitle::edited, this, [this](const QString &text) { titleEdited(text); });
    connect(m_menus, &NoteMenus::chosen, this, &frmNote::run);
    connect(m_minimize, &PictureButton::commanded, this, [this] { run(NoteCommand::Delete); });
    connect(m_exit, &PictureButton::commanded, this, [this] { run(NoteCommand::Move); });
    connect(m_toolbar, &NoteToolbar::commanded, this,
            [this](int index) { run(NoteToolbar::Commands[static_cast<size_t>(index)]); });
    connect(m_toolbar, &NoteToolbar::clickedElsewhere, this, &frmNote::EndTextEditing);
}

void frmNote::connectNote()
{
    connect(&m_note.body, &NoteBody::textPressed, this, [this](Qt::MouseButton button, QPoint at) {
        if (button != Qt::LeftButton)
            return m_menus->openShort(at);
        stopFlashing();
        action().editText();
    });
    connect(&m_note.body, &NoteBody::markPressed, this, [this](qsizetype at) { action().toggleMark(at); });
    connect(&m_note.body, &NoteBody::editingChanged, m_toolbar, &NoteToolbar::setEditing);
    connect(m_overlay, &LockOverlay::clicked, this, [this] { action().unlock(); });
    connect(m_handles, &ResizeHandles::sized, &m_place, &NotePlace::storePlace);
    connect(&m_note.alarm, &NoteAlarm::armedChanged, this, &frmNote::UpdateToolbarIcons);
    connect(&m_note.alarm, &NoteAlarm::fired, this, &frmNote::signalAlarm);
    connect(&m_flash, &NoteFlash::colourChanged, this, &frmNote::showFlash);
    connect(&m_flash, &NoteFlash::raiseWanted, this, [this] {
        // What is modal stays on top: it could neither be seen nor answered below a note.
        if (QApplication::activeModalWidget() != nullptr)
            return;
        comeBack();
        if (!m_note.record.OnTopOn)
            windowStacking::bringForward(*this);
    });
}

bool frmNote::become(clsNoteProps record, const QRect &geometry, NoteCreateMode mode, Lid lid)
{
    const QPointer<frmNote> self = this;
    InitiateNote(std::move(record), lid);
    if (!m_note.record.ToolBarOn)
        RemoveToolBar();
    m_place.placeAt(geometry);
    LayoutNote(); // A picture is read in the size of the body.
    ApplyNoteAppearance();
    if (self != nullptr && !isUnloaded())
        ApplyNoteState(mode);
    if (self == nullptr || isUnloaded())
        return false;
    m_place.setReady();
    m_place.keepFirstPlace();
    return true;
}

void frmNote::InitiateNote(clsNoteProps record, Lid lid)
{
    m_note.take(std::move(record), lid);
    modForms::HookWindow(m_program.forms, *this);
    m_toolbar->setDate(m_note.record.DateCreated);
    // Controls are laid out in pixels; what is left to scale is the size that a note has before its record is applied.
    resize(Twips::design(NoteLayout::DefaultWidth), Twips::design(NoteLayout::DefaultHeight));
    UpdateToolbarIcons();
}

void frmNote::ApplyNoteAppearance()
{
    m_note.dress(font());
    dressInk();
    noteDressing::dressPicture(m_program, m_note.record, m_note.body, this);
}

void frmNote::ApplyNoteState(NoteCreateMode mode)
{
    clsNoteProps &record = m_note.record;
    windowStacking::SetWindowOnTop(*this, record.OnTopOn);
    if (record.FrmScrolledOn)
        ScrollForm();
    if (record.TitleBarTitle.isEmpty())
        record.TempTitle = QString::number(record.Tag);
    showTitle(m_note);
    UpdateToolbarIcons();
    if (m_note.locked)
        lockform();
    const QPointer<frmNote> self = this;
    noteDressing::checkSound(m_program, record, this);
    // A note that comes from elsewhere is silent while it is hidden.
    const bool isLater = mode == NoteCreateMode::Load && modForms::isAnswerAwaited(m_program);
    if (self != nullptr && !isUnloaded() && !isLater)
        m_note.alarm.ArmNoteAlarm();
}

void frmNote::dressInk()
{
    const NoteInk &ink = m_note.ink;
    for (PictureButton *button : {m_menu, m_exit, m_minimize})
        button->setInk(ink.buttonInk);
    m_title->setInk(ink.ink, ink.paper);
    m_toolbar->setInk(ink.buttonInk, ink.faintInk);
    m_overlay->setInk(ink.ink, ink.paper);
    m_note.body.setInk(ink);
    update();
}

void frmNote::showTitle(LiveNote &note)
{
    m_title->setTitle(noteTitles::title(note.record));
    setWindowTitle(m_title->windowTitle());
}

void frmNote::showLock(LiveNote &note)
{
    m_exit->setVisible(!note.locked);
    m_minimize->setVisible(!note.locked);
    m_overlay->setVisible(note.locked);
    m_handles->setMode(note.record.FrmScrolledOn, note.locked);
    LayoutNote();
}

void frmNote::SetFocusToTitleBar()
{
    action().editTitle();
}

QString frmNote::ShortenString(const QString &text, int maxWidth, const QString &fontName, qreal fontSize) const
{
    QFont measured = font();
    measured.setFamily(fontName);
    measured.setPointSizeF(fontSize);
    return textShortening::shortened(text, maxWidth, measured);
}

std::vector<qint32> frmNote::tags() const
{
    return Tag() == 0 || isUnloaded() ? std::vector<qint32>() : std::vector{Tag()};
}

clsNoteProps frmNote::recordNow(qint32 tag)
{
    m_place.storeSettling();
    return NoteHost::recordNow(tag);
}

void frmNote::updateRecords()
{
    m_place.storeSettling();
    NoteHost::updateRecords();
}

void frmNote::SaveThisNote()
{
    m_place.storeSettling();
    modForms::saveNote(m_program, m_note.record);
}

void frmNote::Destroy()
{
    m_closing = true;
    m_place.close();
    stopFlashing();
    m_note.alarm.Destroy();
    m_title->giveUp();
    modForms::UnhookWindow(*this);
}

void frmNote::letGo(qint32)
{
    Destroy();
    unload();
}

void frmNote::moveAway(qint32)
{
    ToTheNoteStack();
}

void frmNote::ToTheNoteStack()
{
    action().move();
}

void frmNote::ResetAlarms()
{
    m_note.alarm.ArmNoteAlarm();
}

/// A note that flashes goes on, in its new colours: only a click ends it.
void frmNote::recordChanged(qint32)
{
    m_flash.setNormal(colours::fromLong(m_note.record.BackColor));
    const QPointer<frmNote> self = this;
    ApplyNoteAppearance();
    if (self == nullptr || isUnloaded())
        return;
    UpdateToolbarIcons();
    m_note.alarm.ArmNoteAlarm();
}

void frmNote::UpdateToolbarIcons()
{
    m_toolbar->UpdateToolbarIcons(m_note.record);
}

void frmNote::EndTextEditing()
{
    m_note.body.commit();
    stopFlashing();
}

void frmNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const NoteInk &ink = m_note.ink;
    const int titleHeight = NoteLayout::rolledHeight();
    painter.fillRect(rect(), ink.paper);
    painter.fillRect(QRect(0, 0, width(), titleHeight), ink.titleStrip);
    if (height() > titleHeight + 1)
        painter.fillRect(QRect(0, titleHeight, width(), 1), ink.titleLine);
    if (m_toolbar->isVisible())
        painter.fillRect(QRect(0, m_toolbar->geometry().bottom() + 1, width(), 1), ink.toolLine);
    // Rectangles, not lines: a line of a pen would lie beside the edge at other scales than 1.
    for (const QRect &edge : {QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1), QRect(0, 0, 1, height()),
                              QRect(width() - 1, 0, 1, height())})
        painter.fillRect(edge, ink.outline);
}
