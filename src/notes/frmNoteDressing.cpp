// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/parts/LockOverlay.h"
#include "notes/parts/NoteBody.h"
#include "notes/ResizeHandles.h"
#include "notes/commands/noteTitles.h"
#include "notes/frmNote.h"
#include "notes/parts/NoteTitle.h"
#include "platform/Prompts.h"
#include "platform/WindowStacking.h"
#include "security/noteLocks.h"
#include "shell/common/Program.h"
#include "shell/common/modForms.h"

#include <QFileInfo>

#include <cmath>

namespace {

constexpr float SmallestPoints = 1.0F;
constexpr float LargestPoints = 400.0F;
constexpr float UsualPoints = 9.0F;

} // namespace

/// Any stored size is kept; shown is one that can be drawn.
QFont frmNote::textFont() const
{
    QFont font = this->font();
    if (!m_record.FontName.isEmpty())
        font.setFamily(m_record.FontName);
    const float points = std::isfinite(m_record.FontSize) && m_record.FontSize > 0 ? m_record.FontSize : UsualPoints;
    font.setPointSizeF(static_cast<qreal>(std::clamp(points, SmallestPoints, LargestPoints)));
    font.setBold(m_record.FontBoldOn);
    font.setItalic(m_record.FontItalicOn);
    return font;
}

void frmNote::ApplyNoteAppearance()
{
    dressColours();
    m_body->setLook(textFont(), m_ink);
    m_body->setText(m_record.Data);
    dressPicture();
}

void frmNote::dressColours()
{
    m_ink = NoteInk::from(m_record.BackColor, m_record.ForeColor);
    for (PictureButton *button : {m_menu, m_exit, m_minimize})
        button->setInk(m_ink.ink);
    m_title->setInk(m_ink.ink, m_ink.paper);
    m_toolbar->setInk(m_ink.ink, m_ink.faintInk);
    m_overlay->setInk(m_ink.ink, m_ink.paper);
    update();
}

void frmNote::dressPicture()
{
    m_body->setPicture({});
    if (!m_record.BackPicOn)
        return;
    if (QFileInfo::exists(m_record.PicFile)) {
        if (m_body->setPicture(m_record.PicFile))
            return;
        m_program.prompts().tell({tr("The image ") + m_record.PicFile + tr(" could not be read.") + u'\n' +
                                      tr("Loading quillet without image."),
                                  tr("File Not Found"), Message::Icon::Critical},
                                 this);
        return;
    }
    m_program.prompts().tell({tr("The image ") + m_record.PicFile + tr(" could not be found.") + u'\n' +
                                  tr("Loading quillet without image."),
                              tr("File Not Found"), Message::Icon::Critical},
                             this);
    m_record.BackPicOn = false;
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
    checkSound();
}

void frmNote::checkSound()
{
    if (!m_record.SoundFileOn || QFileInfo::exists(m_record.SoundFile))
        return;
    m_program.prompts().tell({tr("The sound ") + m_record.SoundFile + tr(" could not be found.") + u'\n' +
                                  tr("Setting alarm flashing window only."),
                              tr("File Not Found"), Message::Icon::Critical},
                             this);
    m_record.SoundFileOn = false;
    m_record.FlashOn = true;
}

void frmNote::showTitle()
{
    m_title->setTitle(title());
    setWindowTitle(m_title->shownTitle());
}

void frmNote::UpdateToolbarIcons()
{
    m_toolbar->UpdateToolbarIcons(m_record);
}

void frmNote::SetFocusToTitleBar()
{
    const QPointer<frmNote> self = this;
    if (m_locked || !noteLocks::checkTitleEditing(m_program, m_record, shortTitle(), this) || self == nullptr || m_locked ||
        isUnloaded())
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
