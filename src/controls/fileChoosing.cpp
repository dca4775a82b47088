// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/fileChoosing.h"

#include "platform/SystemChoosers.h"
#include "platform/Prompts.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

namespace fileChoosing
{
namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("fileChoosing", source);
}

QString allFiles()
{
    return text("All Files (*.*)");
}

QStringList pictureFilters()
{
    return {text("All picture files (*.bmp *.dib *.gif *.jpg *.wmf *.emf *.ico *.cur)"),
            text("Bitmaps (*.bmp *.dib)"),
            text("GIF Images (*.gif)"),
            text("JPEG Images (*.jpg)"),
            text("Metafiles (*.wmf *.emf)"),
            text("Icons (*.ico *.cur)"),
            allFiles()};
}

using Accepts = bool (*)(QStringView path);

std::optional<QString> choose(Program &program, const FileRequest &request, Accepts accepts, const QString &refusal,
                              QWidget *owner)
{
    const QPointer<QWidget> window = owner;
    const std::optional<QString> chosen = program.choosers().openFile(request, owner);
    if (!chosen || accepts(*chosen))
        return chosen;
    program.prompts().tell({refusal, text("Error"), Message::Icon::Critical}, window);
    return std::nullopt;
}

} // namespace

std::optional<QString> picture(Program &program, const QString &title, const QString &current, QWidget *owner)
{
    return choose(program, {title, pictureFilters(), current}, modForms::IsPictureFile, text("Invalid image file."),
                  owner);
}

std::optional<QString> sound(Program &program, const QString &title, const QString &current, QWidget *owner)
{
    return choose(program, {title, {text("WAV Files (*.wav)"), allFiles()}, current}, modForms::IsSoundFile,
                  text("Invalid sound file."), owner);
}

std::optional<QString> book(Program &program, const QString &title, const QString &current, QWidget *owner)
{
    return program.choosers().openFile({title, {text("Text files (*.txt)"), allFiles()}, current}, owner);
}

} // namespace fileChoosing
