// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QPointer>

/// What covers a locked note: the frame fraPassword with the label lblPassword. Made when a note is first locked.
class LockOverlay final : public QObject
{
    Q_OBJECT

public:
    explicit LockOverlay(QWidget *note) : QObject(note), m_note(note) {}

    void setVisible(bool visible);
    void setGeometry(const QRect &rect);
    void setInk(const QColor &ink, const QColor &paper);

signals:
    void clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void make();
    void dress();

    QWidget *m_note;
    QWidget *m_frame = nullptr;
    QLabel *m_label = nullptr;
    QRect m_rect;
    QColor m_ink;
    QColor m_paper;
};
