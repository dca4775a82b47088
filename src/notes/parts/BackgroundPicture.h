// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/SharedPicture.h"

#include <QWidget>

#include <memory>

/// A note's background picture, scaled to cover its place without distortion.
class BackgroundPicture final : public QWidget
{
    Q_OBJECT

public:
    explicit BackgroundPicture(QWidget *parent);
    ~BackgroundPicture() override;

    /// False when the file is no picture of a kind that notes can show; nothing is shown then.
    [[nodiscard]] bool setPicture(std::shared_ptr<SharedPicture> picture);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize pixels() const;
    void letGo();

    std::shared_ptr<SharedPicture> m_picture;
    bool m_isFirst = true; ///< Not painted yet: sharp at once.
    bool m_isSharp = true;
};
