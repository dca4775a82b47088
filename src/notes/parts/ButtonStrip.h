// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/PictureButton.h"
#include "model/clsNoteProps.h"

#include <QLabel>

#include <span>
#include <vector>

/// A toolbar of picture buttons with the label lblEdit at its right, which tells the note's date or that it is being
/// edited. Which buttons there are and where they stand is said by who derives from it.
class ButtonStrip : public QWidget
{
    Q_OBJECT

public:
    struct Button
    {
        const char *name;
        const char *caption; ///< To be translated in the context "ButtonStrip".
        const char *up;      ///< Picture files.
        const char *down;
    };

    ButtonStrip(const Pictures &pictures, const QString &name, std::span<const Button> buttons, qreal statusPoints,
                QWidget *parent);

    void setInk(const QColor &ink, const QColor &faintInk);
    void setPause(std::chrono::milliseconds pause);
    /// What does not fit loses its later words, the time of a date, before it is left out; the tooltip has all of it.
    void setStatus(const QString &status);

signals:
    void commanded(int index);
    /// A press beside the buttons.
    void clickedElsewhere();

protected:
    PictureButton &button(size_t index) { return *m_buttons[index]; }
    size_t buttonCount() const { return m_buttons.size(); }
    /// An empty place hides the label.
    void placeStatus(const QRect &place);
    void mousePressEvent(QMouseEvent *event) override;

private:
    void showFitting();

    std::vector<PictureButton *> m_buttons;
    QLabel *m_edit; // lblEdit
    QString m_status;
};
