// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QCursor>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QString>

/// The picture files of the program, by file name. A .gif holds a shape: dark is the shape, white is not. It is shown
/// in the colour asked for, so that one file reads on every note. Pixmaps are shared between all who ask.
class Pictures
{
public:
    explicit Pictures(QString folder = {}) : m_folder(std::move(folder)) {}

    /// The shape in the colour, from the file for this device pixel ratio ("x.gif", "x@2x.gif", "x@3x.gif").
    QPixmap shape(const QString &fileName, const QColor &ink, qreal devicePixelRatio) const;
    /// Path of a file of the pictures' folder.
    QString path(const QString &fileName) const { return m_folder + QLatin1Char('/') + fileName; }
    QIcon programIcon() const;
    /// Small sizes alone, for every window: each window carries its pixels to the window system.
    QIcon smallIcon() const;
    /// A pointer shape, held by its middle.
    QCursor cursor(const QString &fileName) const;

private:
    QIcon icon(std::initializer_list<int> sizes) const;
    QString pathFor(const QString &fileName, int scale) const;

    QString m_folder;
    mutable QHash<QString, QCursor> m_cursors;
};
