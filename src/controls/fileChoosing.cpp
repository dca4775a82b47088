// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/fileChoosing.h"

#include "forms/Program.h"
#include "forms/modFormsTexts.h"
#include "platform/Choosers.h"
#include "platform/Prompts.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

namespace fileChoosing
{
namespace
{

QString allFiles()
{
    return QCoreApplication::translate("fileChoosing", "All Files (*.*)");
}

QStringList pictureFilters()
{
    return {QCoreApplication::translate("fileChoosing",
                                        "All picture files (*.bmp *.dib *.gif *.jpg *.wmf *.emf *.ico *.cur)"),
            QCoreApplication::translate("fileChoosing", "Bitmaps (*.bmp *.dib)"),
            QCoreApplication::translate("fileChoosing", "GIF Images (*.gif)"),
            QCoreApplication::translate("fileChoosing", "JPEG Images (*.jpg)"),
            QCoreApplication::translate("fileChoosing", "Metafiles (*.wmf *.emf)"),
            QCoreApplication::translate("fileChoosing", "Icons (*.ico *.cur)"),
            allFiles()};
}

/// Which files are taken, and what is said of the others.
struct Rule
{
    bool (*accepts)(QStringView path);
    QString refusal;
    Cancelled cancelled = Cancelled::IsNothing;
};

std::optional<QString> choose(Program &program, const FileRequest &request, const Rule &rule, QWidget *owner)
{
    const QPointer<QWidget> window = owner;
    std::optional<QString> chosen = program.choosers().openFile(request, owner);
    // A dialog that was closed meanwhile lives until the chooser's events are through.
    if (window == nullptr || !window->isVisible())
        return std::nullopt;
    if (!chosen && rule.cancelled == Cancelled::IsCurrent)
        chosen = request.current;
    if (!chosen || rule.accepts(*chosen))
        return chosen;
    program.prompts().tell(
        {rule.refusal, QCoreApplication::translate("fileChoosing", "Error"), Message::Icon::Critical}, owner);
    return std::nullopt;
}

} // namespace

std::optional<QString> picture(Program &program, const QString &title, const QString &current, QWidget *owner)
{
    return choose(program, {title, pictureFilters(), current},
                  {modForms::IsPictureFile, QCoreApplication::translate("fileChoosing", "Invalid image file.")}, owner);
}

std::optional<QString> sound(Program &program, const QString &title, const QString &current, Cancelled cancelled,
                             QWidget *owner)
{
    const QString waves = QCoreApplication::translate("fileChoosing", "WAV Files (*.wav)");
    return choose(
        program, {title, {waves, allFiles()}, current},
        {modForms::IsSoundFile, QCoreApplication::translate("fileChoosing", "Invalid sound file."), cancelled}, owner);
}

std::optional<QString> book(Program &program, const QString &title, const QString &current, QWidget *owner)
{
    const QString texts = QCoreApplication::translate("fileChoosing", "Text files (*.txt)");
    return program.choosers().openFile({title, {texts, allFiles()}, current}, owner);
}

} // namespace fileChoosing
