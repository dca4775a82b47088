// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

/// A note's background picture, scaled to cover its place without distortion. A file is decoded once, no larger than
/// a screen can show, and scaled once for each size.
class BackgroundPicture final : public QWidget
{
    Q_OBJECT

public:
    explicit BackgroundPicture(QWidget *parent);

    /// False when the file is no picture of a kind that notes can show; nothing is shown then.
    [[nodiscard]] bool load(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void scaleTo(QSize size);

    QString m_key;     ///< Of the file as it is.
    QPixmap m_picture; ///< Shared by all notes that show the file.
    QPixmap m_scaled;  ///< Shared by those of the same size.
};
