// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A button that shows a colour in place of a text.
class ColourButton final : public QPushButton
{
    Q_OBJECT

public:
    ColourButton(const QString &name, const QString &accessibleName, QWidget *parent);

    void setColour(const QColor &colour);
    const QColor &colour() const { return m_colour; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
};
