// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/NoteInk.h"

#include <QWidget>

/// The chosen note as a sheet below the tabs: draws paper, title strip, lines and outline. What lies on it is its
/// owner's.
class StackPage final : public QWidget
{
    Q_OBJECT

public:
    explicit StackPage(QWidget *parent) : QWidget(parent) { setObjectName(QStringLiteral("fraPage")); }

    static constexpr int TitleHeight = 22;
    static constexpr int ToolbarHeight = 34;

    void setInk(const NoteInk &ink);
    QRect titleRect() const;
    QRect toolbarRect() const;
    QRect bodyRect() const;
    /// Of the locked overlay and of the empty state: all below the toolbar.
    QRect coverRect() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    NoteInk m_ink;
};
