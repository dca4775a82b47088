// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteBody.h"
#include "notes/ResizeHandles.h"
#include "notes/commands/noteDressing.h"
#include "notes/commands/noteTitles.h"
#include "notes/frmNote.h"
#include "notes/parts/NoteTitle.h"
#include "platform/windowStacking.h"
#include "security/noteLocks.h"
#include "forms/Program.h"
#include "forms/modForms.h"

void frmNote::ApplyNoteAppearance()
{
    dressColours();
    m_body->setLook(noteDressing::textFont(m_record, font()), m_ink);
    if (!m_locked)
        m_body->setText(m_record.Data);
    noteDressing::dressPicture(m_program, m_record, *m_body, this);
}

void frmNote::dressColours()
{
    m_ink = NoteInk::from(m_record.BackColor, m_record.ForeColor);
    dressInk();
}

void frmNote::dressInk()
{
    for (PictureButton *button : {m_menu, m_exit, m_minimize})
        button->setInk(m_ink.buttonInk);
    m_title->setInk(m_ink.ink, m_ink.paper);
    m_toolbar->setInk(m_ink.buttonInk, m_ink.faintInk);
    m_overlay->setInk(m_ink.ink, m_ink.paper);
    m_body->setInk(m_ink);
    update();
}

void frmNote::ApplyNoteState(NoteCreateMode)
{
    windowStacking::SetWindowOnTop(*this, m_record.OnTopOn);
    if (m_record.FrmScrolledOn)
        ScrollForm();
    if (m_record.TitleBarTitle.isEmpty())
        m_record.TempTitle = QString::number(m_record.Tag);
    showTitle();
    UpdateToolbarIcons();
    if (noteLocks::opensLocked(m_record))
        lockform();
    const QPointer<frmNote> self = this;
    noteDressing::checkSound(m_program, m_record, this);
    if (self != nullptr && !isUnloaded())
        m_alarm.ArmNoteAlarm();
}

void frmNote::showTitle()
{
    m_title->setTitle(title());
    setWindowTitle(m_title->windowTitle());
}

void frmNote::UpdateToolbarIcons()
{
    m_toolbar->UpdateToolbarIcons(m_record);
}

void frmNote::SetFocusToTitleBar()
{
    const QPointer<frmNote> self = this;
    if (m_locked ||
        !noteLocks::checkTitleEditing(m_program, m_record, noteTitles::promptTitle(m_record, noteTitles::PromptReserve),
                                      this) ||
        self == nullptr || m_locked || isUnloaded())
        return;
    beginTitleEditing();
}

void frmNote::beginTitleEditing()
{
    m_body->commit();
    activateWindow();
    m_title->beginEditing(title());
}

void frmNote::titleEdited(const QString &text)
{
    const QPointer<frmNote> self = this;
    const bool taken = noteTitles::take(m_program, m_record, text, isReady(), this);
    if (self == nullptr || isUnloaded())
        return;
    showTitle();
    if (!taken && isReady() && !m_locked)
        beginTitleEditing();
}

void frmNote::lockform()
{
    ShowLockLayer(true);
}

void frmNote::ShowLockLayer(bool locked)
{
    if (locked) {
        m_title->giveUp();
        m_body->commit();
    }
    m_locked = locked;
    if (locked)
        m_body->forgetText();
    else
        m_body->setText(m_record.Data);
    m_exit->setVisible(!locked);
    m_minimize->setVisible(!locked);
    m_overlay->setVisible(locked);
    m_handles->setMode(m_record.FrmScrolledOn, locked);
    LayoutNote();
}
