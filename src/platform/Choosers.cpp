// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/Choosers.h"

#include "platform/WindowStacking.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>

#include <algorithm>

namespace
{

/// The font by a family and a style that the chooser has in its lists: it looks for a style "Normal" in families that
/// name theirs otherwise, and takes the first of the list where it finds none, be it italic.
QFont selectable(const QFont &font)
{
    static const QStringList PlainNames{
        QStringLiteral("Regular"), QStringLiteral("Book"),        QStringLiteral("Normal"),
        QStringLiteral("Roman"),   QStringLiteral("Bold"),        QStringLiteral("Italic"),
        QStringLiteral("Oblique"), QStringLiteral("Bold Italic"), QStringLiteral("Bold Oblique")};
    constexpr int AnySize = 9;
    QFont result = font;
    const QString family = QFontInfo(font).family();
    result.setFamily(family);
    int bestRank = -1;
    for (const QString &style : QFontDatabase::styles(family)) {
        const QFont candidate = QFontDatabase::font(family, style, AnySize);
        if (candidate.bold() != font.bold() || candidate.italic() != font.italic())
            continue;
        const int rank = (candidate.weight() == font.weight() ? 1 : 0) + (PlainNames.contains(style) ? 2 : 0);
        if (rank > bestRank)
            result.setStyleName(style);
        bestRank = std::max(rank, bestRank);
    }
    return result;
}

} // namespace

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
    QFontDialog dialog(selectable(current), owner);
    dialog.setObjectName(QStringLiteral("FontChooser"));
    windowStacking::keepAboveNotes(dialog);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.selectedFont()) : std::nullopt;
}
