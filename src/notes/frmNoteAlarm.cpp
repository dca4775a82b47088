// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "drawing/colours.h"
#include "forms/Program.h"
#include "forms/modFormsHiding.h"
#include "notes/frmNote.h"
#include "platform/SoundPlayer.h"

#include <QApplication>

// What a desktop note does when its alarm goes off.

void frmNote::signalAlarm()
{
    comeBack();
    if (m_note.record.FlashOn)
        m_flash.StartFlashing(colours::fromLong(m_note.record.BackColor));
    const bool isSilent = m_program.silentOnce.remove(Tag());
    if (m_note.record.SoundFileOn && !isSilent)
        PlayAlarmSound();
}

/// An alarm is seen although all notes are hidden, but comes before no box.
void frmNote::comeBack()
{
    if (QApplication::activeModalWidget() == nullptr)
        modForms::bringBack(m_program, *this);
}

void frmNote::PlayAlarmSound()
{
    m_program.sound().play(m_note.record.SoundFile);
}

/// The colours of the record stay as they are; only what is seen alternates, with a text that can be read on both.
void frmNote::showFlash(const QColor &paper)
{
    const clsNoteProps &record = m_note.record;
    const bool isOwn = paper == colours::fromLong(record.BackColor);
    m_note.ink = NoteInk::from(colours::toLong(paper), isOwn ? record.ForeColor : colours::SystemText);
    dressInk();
}
