// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteDressing.h"

#include "notes/parts/NoteBody.h"
#include "platform/Prompts.h"
#include "forms/Program.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>

namespace noteDressing
{
namespace
{

constexpr float SmallestPoints = 1.0F;
constexpr float LargestPoints = 400.0F;
constexpr float UsualPoints = 9.0F;

void tellFile(Program &program, const QString &what, const QString &instead, QWidget *owner)
{
    const QString caption = QCoreApplication::translate("noteDressing", "File Not Found");
    program.prompts().tell({what + u'\n' + instead, caption, Message::Icon::Critical}, owner);
}

} // namespace

QFont textFont(const clsNoteProps &note, QFont base)
{
    if (!note.FontName.isEmpty())
        base.setFamily(note.FontName);
    const float points = std::isfinite(note.FontSize) && note.FontSize > 0 ? note.FontSize : UsualPoints;
    base.setPointSizeF(static_cast<qreal>(std::clamp(points, SmallestPoints, LargestPoints)));
    base.setBold(note.FontBoldOn);
    base.setItalic(note.FontItalicOn);
    return base;
}

void dressPicture(Program &program, clsNoteProps &note, NoteBody &body, QWidget *owner)
{
    if (!note.BackPicOn) {
        body.setPicture({});
        return;
    }
    const bool found = QFileInfo::exists(note.PicFile);
    if (found && body.setPicture(note.PicFile))
        return;
    body.setPicture({});
    const QString what = QCoreApplication::translate("noteDressing", "The image ") + note.PicFile +
                         (found ? QCoreApplication::translate("noteDressing", " could not be read.")
                                : QCoreApplication::translate("noteDressing", " could not be found."));
    if (!found)
        note.BackPicOn = false;
    tellFile(program, what, QCoreApplication::translate("noteDressing", "Loading quillet without image."), owner);
}

void checkSound(Program &program, clsNoteProps &note, QWidget *owner)
{
    if (!note.SoundFileOn || QFileInfo::exists(note.SoundFile))
        return;
    note.SoundFileOn = false;
    note.FlashOn = true;
    tellFile(program,
             QCoreApplication::translate("noteDressing", "The sound ") + note.SoundFile +
                 QCoreApplication::translate("noteDressing", " could not be found."),
             QCoreApplication::translate("noteDressing", "Setting alarm flashing window only."), owner);
}

} // namespace noteDressing
