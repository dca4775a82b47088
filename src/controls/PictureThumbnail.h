// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Shows a picture file small. The file is read beside the program's own work; until it is there, and where it cannot
/// be read, a few words stand in its place.
class PictureThumbnail final : public QLabel
{
    Q_OBJECT

public:
    explicit PictureThumbnail(QWidget *parent);

    void setPath(const QString &path);

private:
    void showPicture(int request, const QImage &picture);

    QString m_path;
    int m_request = 0; ///< Only the answer to the last one is shown.
};
