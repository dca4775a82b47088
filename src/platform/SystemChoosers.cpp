// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemChoosers.h"

#include "platform/windowStacking.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QPointer>

#include <algorithm>

namespace
{

/// The font by a family and a style that the chooser has in its lists: it looks for a style "Normal" in families that
/// name theirs otherwise, and takes the first of the list where it finds none, be it italic.
QFont selectable(const QFont &font)
{
    static const QStringList plainNames{
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
        const int rank = (candidate.weight() == font.weight() ? 1 : 0) + (plainNames.contains(style) ? 2 : 0);
        if (rank > bestRank)
            result.setStyleName(style);
        bestRank = std::max(rank, bestRank);
    }
    return result;
}

/// Runs a chooser; what it is asked for counts only when it was accepted. Its owner may go while it is open, and takes
/// it along.
template <typename Dialog, typename Result>
std::optional<Result> resultOf(Dialog *made, const QString &name, Result (*result)(const Dialog &))
{
    const QPointer<Dialog> dialog = made;
    dialog->setObjectName(name);
    windowStacking::keepAboveNotes(*dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const auto chosen = accepted ? std::optional(result(*dialog)) : std::nullopt;
    delete dialog;
    return chosen;
}

} // namespace

namespace
{

QStringList chosenFiles(QFileDialog *dialog, QFileDialog::FileMode mode)
{
    dialog->setFileMode(mode);
    return resultOf<QFileDialog, QStringList>(dialog, QStringLiteral("FileChooser"),
                                              [](const QFileDialog &done) { return done.selectedFiles(); })
        .value_or(QStringList());
}

QFileDialog *fileDialog(const FileRequest &request, QWidget *owner)
{
    auto *dialog = new QFileDialog(owner, request.title);
    dialog->setNameFilters(request.filters);
    if (!request.current.isEmpty())
        dialog->selectFile(request.current);
    return dialog;
}

std::optional<QString> firstOf(const QStringList &paths)
{
    return paths.isEmpty() ? std::nullopt : std::optional(paths.constFirst());
}

} // namespace

std::optional<QString> SystemChoosers::openFile(const FileRequest &request, QWidget *owner)
{
    return firstOf(chosenFiles(fileDialog(request, owner), QFileDialog::ExistingFile));
}

QStringList SystemChoosers::openFiles(const FileRequest &request, QWidget *owner)
{
    return chosenFiles(fileDialog(request, owner), QFileDialog::ExistingFiles);
}

std::optional<QString> SystemChoosers::folder(const QString &title, QWidget *owner)
{
    auto *dialog = new QFileDialog(owner, title);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return firstOf(chosenFiles(dialog, QFileDialog::Directory));
}

std::optional<QColor> SystemChoosers::colour(const QColor &current, QWidget *owner)
{
    return resultOf<QColorDialog, QColor>(new QColorDialog(current, owner), QStringLiteral("ColourChooser"),
                                          [](const QColorDialog &done) { return done.selectedColor(); });
}

std::optional<QFont> SystemChoosers::font(const QFont &current, QWidget *owner)
{
    return resultOf<QFontDialog, QFont>(new QFontDialog(selectable(current), owner), QStringLiteral("FontChooser"),
                                        [](const QFontDialog &done) { return done.selectedFont(); });
}
