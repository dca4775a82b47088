// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

/// A check box with its text in a label of its own, which toggles it, and a frame around the box while it has the
/// focus. For the name "Flash" the three are called chkFlash, lblFlash and shaFlash.
class MarkedCheckBox final : public QWidget
{
    Q_OBJECT

public:
    /// An "&" of the text marks the letter that toggles the box with Alt.
    MarkedCheckBox(const QString &name, const QString &text, QWidget *parent);

    bool isChecked() const;
    void setChecked(bool on);

signals:
    void toggled(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void labelClicked();

    QWidget *m_mark;
    QCheckBox *m_box;
    QLabel *m_label;
};
