// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/frmNoteStack.h"

#include "controls/SizeGrip.h"
#include "drawing/colours.h"
#include "forms/Program.h"
#include "forms/modFormsSaving.h"
#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteAction.h"
#include "notes/commands/NoteMenus.h"
#include "notes/commands/noteDressing.h"
#include "notes/commands/noteTitles.h"
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteTitle.h"
#include "notestack/NoteTabs.h"
#include "notestack/StackPage.h"
#include "notestack/TabbedNotes.h"

// The notes of the NoteStack: how they come and are shown.

std::vector<qint32> frmNoteStack::tags() const
{
    return m_notes->tags();
}

LiveNote *frmNoteStack::live(qint32 tag)
{
    return m_notes->find(tag);
}

LiveNote *frmNoteStack::chosen()
{
    return m_notes->chosen();
}

int frmNoteStack::noteCount() const
{
    return m_notes->count();
}

int frmNoteStack::NumOfQuillets() const
{
    return m_tabs->count();
}

bool frmNoteStack::isShown(const LiveNote &note) const
{
    return isVisible() && !m_closing && &note == m_notes->chosen();
}

int frmNoteStack::AddANote(const clsNoteProps &record, Lid lid)
{
    commitEditing();
    auto made = std::make_unique<LiveNote>(m_program, m_page);
    LiveNote &note = *made;
    note.take(record, lid);
    note.body.setShown(false);
    connectNote(note);
    m_notes->add(std::move(made));
    const int index = noteCount() - 1;
    ApplyTabAppearance(note);
    // A box may have been open, and the note may have left and come back meanwhile as another.
    if (LiveNote *now = live(record.Tag))
        ApplyTabState(*now);
    SetActivatedForm();
    return index;
}

void frmNoteStack::connectNote(LiveNote &note)
{
    const qint32 tag = note.tag();
    connect(&note.body, &NoteBody::textPressed, this, [this](Qt::MouseButton button, QPoint at) {
        if (button == Qt::LeftButton)
            action().editText();
        else
            m_menus->openShort(at);
    });
    connect(&note.body, &NoteBody::markPressed, this, [this](qsizetype at) { action().toggleMark(at); });
    connect(&note.body, &NoteBody::editingChanged, this, [this, tag](bool editing) {
        const LiveNote *shown = chosen();
        if (shown != nullptr && shown->tag() == tag)
            m_toolbar->setStatus(editing ? tr("Editing ...") : shown->record.DateCreated);
    });
    connect(&note.alarm, &NoteAlarm::fired, this, [this, tag] { AlarmCont(tag); });
    connect(&note.alarm, &NoteAlarm::armedChanged, this, [this] {
        if (const LiveNote *shown = chosen())
            m_toolbar->showState(&shown->record);
    });
}

void frmNoteStack::AddFrmNote(const clsNoteProps &note)
{
    AddANote(note);
    showStack();
}

void frmNoteStack::ApplyTabAppearance(LiveNote &note)
{
    note.dress(font());
    m_tabs->setInk(m_notes->indexOf(note.tag()), note.ink);
    noteDressing::dressPicture(m_program, note.record, note.body, this);
}

void frmNoteStack::ApplyTabState(LiveNote &note)
{
    const qint32 tag = note.tag();
    if (note.record.TitleBarTitle.isEmpty())
        note.record.TempTitle = QString::number(tag);
    showTitle(note);
    if (note.locked)
        setLocked(tag, true);
    noteDressing::checkSound(m_program, note.record, this);
    if (LiveNote *now = live(tag))
        ArmTabAlarm(*now);
}

void frmNoteStack::reveal(qint32 tag)
{
    showStack();
    m_tabs->setCurrentIndex(m_notes->indexOf(tag));
    setFocus();
}

void frmNoteStack::showTitle(LiveNote &note)
{
    const QString title = noteTitles::title(note.record);
    m_tabs->setTitle(m_notes->indexOf(note.tag()), title);
    if (&note == chosen())
        m_title->setTitle(title);
}

void frmNoteStack::tabChosen()
{
    const bool blankTitle = m_title->isBlank();
    commitEditing();
    ShowNewTitle();
    // Events run while the box is open: the tabs have to have changed first.
    if (blankTitle)
        QMetaObject::invokeMethod(
            this, [this] { noteTitles::tellBlank(m_program, this); }, Qt::QueuedConnection);
}

void frmNoteStack::ShowNewTitle()
{
    if (!m_notes->isEmpty())
        SetActivatedForm();
}

void frmNoteStack::SetActivatedForm()
{
    if (m_notes->isEmpty())
        showEmpty();
    else
        showChosen();
}

void frmNoteStack::showChosen()
{
    LiveNote *note = chosen();
    if (note == nullptr)
        return;
    for (const qint32 tag : tags())
        if (LiveNote *other = live(tag); other != note)
            other->body.setShown(false);
    m_empty->hide();
    dressPage(note->ink);
    m_title->setTitle(noteTitles::title(note->record));
    m_toolbar->showState(&note->record);
    m_toolbar->setStatus(note->body.isEditing() ? tr("Editing ...") : note->record.DateCreated);
    note->body.setGeometry(m_page->bodyRect());
    note->body.setShown(!note->locked);
    m_exit->setVisible(!note->locked);
    m_overlay->setVisible(note->locked);
    m_grip->raise();
}

void frmNoteStack::dressPage(const NoteInk &ink)
{
    m_page->setInk(ink);
    for (PictureButton *button : {m_menu, m_exit})
        button->setInk(ink.buttonInk);
    m_title->setInk(ink.ink, ink.paper);
    m_toolbar->setInk(ink.buttonInk, ink.faintInk);
    m_overlay->setInk(ink.ink, ink.paper);
    QColor grip = ink.ink;
    grip.setAlphaF(0.5F);
    m_grip->setInk(grip);
}

void frmNoteStack::showEmpty()
{
    dressPage(NoteInk::from(colours::toLong(palette().color(QPalette::Base)),
                            colours::toLong(palette().color(QPalette::Text))));
    m_tabs->setEmpty(0);
    m_title->setTitle(QStringLiteral("Quillets"));
    m_toolbar->showState(nullptr);
    m_toolbar->setStatus(QStringLiteral("Quillets"));
    m_overlay->setVisible(false);
    m_exit->setVisible(true);
    m_empty->show();
    m_empty->raise();
    m_grip->raise();
}

/// Some of the notes' colours may be those of the desktop, and the empty state's are.
void frmNoteStack::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || m_menus == nullptr || m_closing)
        return;
    for (const qint32 tag : tags()) {
        LiveNote &note = *live(tag);
        note.mixInk();
        m_tabs->setInk(m_notes->indexOf(tag), note.ink);
    }
    SetActivatedForm();
}

void frmNoteStack::showLock(LiveNote &note)
{
    if (&note == chosen())
        showChosen();
}

void frmNoteStack::SaveThisStackSys()
{
    updateRecords();
    for (const qint32 tag : tags())
        if (clsNoteProps *record = recordOf(tag))
            modForms::saveNote(m_program, *record);
}

void frmNoteStack::recordChanged(qint32 tag)
{
    if (LiveNote *note = live(tag))
        ApplyTabAppearance(*note);
    LiveNote *note = live(tag);
    if (note == nullptr)
        return;
    ArmTabAlarm(*note);
    ShowNewTitle();
}

void frmNoteStack::ArmTabAlarm(LiveNote &note)
{
    note.alarm.ArmNoteAlarm();
    if (&note == chosen())
        m_toolbar->showState(&note.record);
}

void frmNoteStack::ResetAlarms()
{
    for (const qint32 tag : tags())
        if (LiveNote *note = live(tag))
            ArmTabAlarm(*note);
}
