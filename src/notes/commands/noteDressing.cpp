// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteDressing.h"

#include "forms/Program.h"
#include "notes/parts/NoteBody.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace noteDressing
{
namespace
{

void tellFile(Program &program, const QString &what, const QString &instead, QWidget *owner)
{
    const QString caption = QCoreApplication::translate("noteDressing", "File Not Found");
    program.prompts().tell({what + u'\n' + instead, caption, Message::Icon::Critical}, owner);
}

} // namespace

void dressPicture(Program &program, clsNoteProps &note, NoteBody &body, QWidget *owner)
{
    if (!note.BackPicOn) {
        body.setPicture({});
        return;
    }
    const bool found = QFileInfo::exists(note.PicFile);
    if (found && body.setPicture(program.backgrounds.of(note.PicFile)))
        return;
    body.setPicture({});
    const QString what = found ? QCoreApplication::translate("noteDressing", "The image %1 could not be read.")
                               : QCoreApplication::translate("noteDressing", "The image %1 could not be found.");
    if (!found)
        note.BackPicOn = false;
    else if (std::exchange(program.unreadablePictures[note.Tag], note.PicFile) == note.PicFile)
        return;
    tellFile(program, what.arg(note.PicFile),
             QCoreApplication::translate("noteDressing", "Loading quillet without image."), owner);
}

void checkSound(Program &program, clsNoteProps &note, QWidget *owner)
{
    if (!note.SoundFileOn || QFileInfo::exists(note.SoundFile))
        return;
    note.SoundFileOn = false;
    note.FlashOn = true;
    tellFile(program,
             QCoreApplication::translate("noteDressing", "The sound %1 could not be found.").arg(note.SoundFile),
             QCoreApplication::translate("noteDressing", "Setting alarm flashing window only."), owner);
}

} // namespace noteDressing
