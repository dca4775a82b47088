// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/NoteInk.h"

#include <QTabBar>

/// The tabs of the NoteStack: each carries the colour of its note, the chosen one stands out. Captions show titles as
/// they are, an "&" included.
class NoteTabs final : public QTabBar
{
    Q_OBJECT

public:
    explicit NoteTabs(QWidget *parent);

    /// Shortened once, from the whole title, which becomes the tooltip.
    void setTitle(int tab, const QString &title);
    void setInk(int tab, const NoteInk &ink);
    /// The tab that stands for no note.
    void setEmpty(int tab);
    QString caption(int tab) const;

    static int widestCaption();

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void paintTab(QPainter &painter, int index) const;
};
