// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <functional>

class QPainter;

/// A picture file that covers places on the screen. It is decoded once for all of them, just large enough for the
/// largest, and again after one has grown; until the growing rests, what there is is stretched. Sizes are in pixels of
/// the screen. It holds at most the 64 MB that `pictureFile` gives, whatever the file claims.
class SharedPicture final : public QObject
{
    Q_OBJECT

public:
    /// `key` tells this state of the file from others; `rested` is called when nothing more was drawn for a while.
    SharedPicture(QString path, QString key, const std::function<void()> &rested);

    /// `who` shows it in this size from now on, until it says `leave`.
    void cover(const QObject *who, QSize size);
    void leave(const QObject *who);
    /// False when the file cannot be shown.
    bool isReadable();
    /// Decodes what all places need now, where that is more than there is.
    void fit();
    /// False: it was stretched, and `sharpened` is to come.
    bool draw(QPainter &painter, const QRect &place, QSize size);

signals:
    void sharpened();

private:
    QSize largest() const;
    double stretch(QSize size) const;
    void read(QSize size);
    void drawWaiting(QPainter &painter, const QRect &place, const QRectF &part) const;
    QPixmap scaled(QSize size, const QRectF &part) const;

    QString m_path;
    QString m_key;
    QHash<const QObject *, QSize> m_places;
    QImage m_picture;
    bool m_isAll = false; ///< The file gives no more pixels.
    QTimer m_rest;
};
