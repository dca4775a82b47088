// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Choosers.h"

#include "platform/WindowStacking.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>

std::optional<QString> DesktopChoosers::openFile(const FileRequest &request, QWidget *owner)
{
    QFileDialog dialog(owner, request.title);
    dialog.setObjectName(QStringLiteral("FileChooser"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(request.filters);
    if (!request.current.isEmpty())
        dialog.selectFile(request.current);
    windowStacking::keepAboveNotes(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<QColor> DesktopChoosers::colour(const QColor &current, QWidget *owner)
{
    QColorDialog dialog(current, owner);
    dialog.setObjectName(QStringLiteral("ColourChooser"));
    windowStacking::keepAboveNotes(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedColor()) : std::nullopt;
}

std::optional<QFont> DesktopChoosers::font(const QFont &current, QWidget *owner)
{
    QFontDialog dialog(current, owner);
    dialog.setObjectName(QStringLiteral("FontChooser"));
    windowStacking::keepAboveNotes(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedFont()) : std::nullopt;
}
