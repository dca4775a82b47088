// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Choosers.h"

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
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<QColor> DesktopChoosers::colour(const QColor &current, QWidget *owner)
{
    const QColor chosen = QColorDialog::getColor(current, owner);
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

std::optional<QFont> DesktopChoosers::font(const QFont &current, QWidget *owner)
{
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, current, owner);
    return accepted ? std::optional(chosen) : std::nullopt;
}
