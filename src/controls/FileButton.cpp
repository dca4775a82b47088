// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/FileButton.h"

#include "drawing/toolTips.h"

namespace
{

constexpr int Width = 230;
constexpr int EdgeRoom = 20; ///< Of the button's width, left free of text.
constexpr qsizetype LongestMeasured = 1024;
constexpr QStringView Cut = u"...";

/// The end of a path tells more than its beginning.
QString fitted(const QString &path, const QFontMetrics &metrics, int width)
{
    const QString end = path.right(LongestMeasured);
    if (end.size() == path.size() && metrics.horizontalAdvance(path) <= width)
        return path;
    const int left = width - metrics.horizontalAdvance(Cut.toString());
    qsizetype good = 0;
    qsizetype bad = end.size() + 1;
    while (bad - good > 1) {
        const qsizetype middle = good + (bad - good) / 2;
        (metrics.horizontalAdvance(end.right(middle)) <= left ? good : bad) = middle;
    }
    if (good > 0 && end.at(end.size() - good).isLowSurrogate())
        --good;
    return Cut.toString() + end.right(good);
}

} // namespace

FileButton::FileButton(const QString &name, const QString &accessibleName, QWidget *parent) : QPushButton(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setPath({});
}

void FileButton::setPath(const QString &path)
{
    m_path = path;
    setToolTip(toolTips::plain(path));
    setAccessibleDescription(path.left(LongestMeasured));
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
    QString text = m_path.isEmpty() ? tr("Choose file") : fitted(m_path, fontMetrics(), width() - EdgeRoom);
    setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
}
