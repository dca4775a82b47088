// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

/// A check box with its caption beside it. A click on the caption toggles the box, unless the box shows the third
/// state; a mark surrounds both while the box has the focus. For the name "Flash" the three are chkFlash, lblFlash
/// and shaFlash. The mark reaches a little over the row's left edge, so that boxes stand in line with other controls.
class CheckRow final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MarkRoom = 4; ///< Pixels that the mark needs left of the row.

    CheckRow(const QString &name, const QString &caption, QWidget *parent);

    QCheckBox *box() const { return m_box; }
    QLabel *caption() const { return m_caption; }
    /// A sentence for the tooltip and for screen readers.
    void explain(const QString &text);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeMark();
    void captionClicked();

    QCheckBox *m_box;
    QLabel *m_caption;
    QWidget *m_mark;
};
