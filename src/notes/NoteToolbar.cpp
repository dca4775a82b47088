// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/NoteToolbar.h"

#include <algorithm>

namespace
{

constexpr qreal DatePoints = 7.0;

constexpr ButtonStrip::Button Buttons[] = {
    {"imgHelp", QT_TRANSLATE_NOOP("ButtonStrip", "Help"), "helpupsmall.gif", "helpdownsmall.gif"},
    {"imgSettings", QT_TRANSLATE_NOOP("ButtonStrip", "Quillet Settings"), "settingsupsmall.gif",
     "settingsdownsmall.gif"},
    {"imgEmail", QT_TRANSLATE_NOOP("ButtonStrip", "E-mail A Quillet"), "emailupsmall.gif", "emaildownsmall.gif"},
    {"imgSend", QT_TRANSLATE_NOOP("ButtonStrip", "Send A Quillet"), "sendupsmall.gif", "senddownsmall.gif"},
    {"imgAlarm", QT_TRANSLATE_NOOP("ButtonStrip", "Alarm Settings"), "alarmupsmall.gif", "alarmdownsmall.gif"},
    {"imgPassword", QT_TRANSLATE_NOOP("ButtonStrip", "Password Settings"), "passwordupsmall.gif",
     "passworddownsmall.gif"},
};

} // namespace

NoteToolbar::NoteToolbar(const Pictures &pictures, QWidget *note)
    : ButtonStrip(pictures, QStringLiteral("fraButtons"), Buttons, DatePoints, note)
{}

PictureButton &NoteToolbar::button(NoteCommand command)
{
    return ButtonStrip::button(
        static_cast<size_t>(std::find(Commands.begin(), Commands.end(), command) - Commands.begin()));
}

void NoteToolbar::layOut(const NoteLayout &layout)
{
    setVisible(!layout.buttons.isEmpty());
    if (layout.buttons.isEmpty())
        return;
    setGeometry(layout.buttons);
    for (size_t i = 0; i < buttonCount(); ++i) {
        ButtonStrip::button(i).setGeometry(layout.images[i]);
        ButtonStrip::button(i).setVisible(layout.imageFits[i]);
    }
    placeStatus(layout.edit);
}

void NoteToolbar::setDate(const QString &date)
{
    m_date = date;
    setStatus(date);
}

void NoteToolbar::setEditing(bool editing)
{
    setStatus(editing ? tr("Editing ...") : m_date);
}

void NoteToolbar::UpdateToolbarIcons(const clsNoteProps &note)
{
    button(NoteCommand::Alarm).setDown(note.AlarmOn);
    button(NoteCommand::Password).setDown(note.PwdOn);
}
