// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

/// A check box with its caption beside it. A click on the caption toggles the box, unless the box shows the third
/// state; a mark surrounds both while the box has the focus. For the name "Flash" the three are chkFlash, lblFlash
/// and shaFlash.
class CheckRow final : public QWidget
{
    Q_OBJECT

public:
    CheckRow(const QString &name, const QString &caption, QWidget *parent);

    QCheckBox *box() const { return m_box; }
    QLabel *caption() const { return m_caption; }
    /// A sentence for the tooltip and for screen readers.
    void explain(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void captionClicked();

    QCheckBox *m_box;
    QLabel *m_caption;
    QWidget *m_mark;
};
