// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/FileButton.h"

#include "drawing/Twips.h"
#include "drawing/textShortening.h"
#include "drawing/toolTips.h"
#include "model/textFile.h"

namespace
{

constexpr int Width = 230;
constexpr int EdgeRoom = 20;         ///< Of the button's width, left free of text.
constexpr int EdgeRoomInTwips = 250; ///< The same where the end is cut.
constexpr qsizetype LongestMeasured = 1024;

QString cutAtFront(const QString &path, const QFontMetrics &metrics, int width)
{
    const QString end = path.right(LongestMeasured);
    if (end.size() == path.size() && metrics.horizontalAdvance(path) <= width)
        return path;
    const int left = width - metrics.horizontalAdvance(textShortening::Dots);
    qsizetype good = 0;
    qsizetype bad = end.size() + 1;
    while (bad - good > 1) {
        const qsizetype middle = good + (bad - good) / 2;
        (metrics.horizontalAdvance(end.right(middle)) <= left ? good : bad) = middle;
    }
    if (good > 0 && end.at(end.size() - good).isLowSurrogate())
        --good;
    return textShortening::Dots + end.right(good);
}

} // namespace

FileButton::FileButton(const QString &name, const QString &accessibleName, Cut cut, QWidget *parent)
    : QPushButton(parent), m_cut(cut)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setPath({});
}

void FileButton::setPath(const QString &path)
{
    // A path may come from a record that somebody made.
    m_path = textFile::flattened(path);
    setToolTip(toolTips::plain(path));
    setAccessibleDescription(m_path.left(LongestMeasured));
    showPath();
}

QSize FileButton::sizeHint() const
{
    return {Width, QPushButton::sizeHint().height()};
}

void FileButton::resizeEvent(QResizeEvent *event)
{
    QPushButton::resizeEvent(event);
    showPath();
}

void FileButton::showPath()
{
    QString text = tr("Choose file");
    if (!m_path.isEmpty() && m_cut == Cut::Front)
        text = cutAtFront(m_path, fontMetrics(), width() - EdgeRoom);
    else if (!m_path.isEmpty())
        text = textShortening::shortened(m_path, width() - Twips::design(EdgeRoomInTwips), font());
    setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
}
