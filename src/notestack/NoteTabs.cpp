// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/NoteTabs.h"

#include "drawing/textShortening.h"
#include "drawing/toolTips.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace
{

constexpr int TabHeight = 26;
constexpr int WidestCaption = 130;
constexpr int SidePadding = 12;
constexpr int Raise = 3; ///< How far the chosen tab stands above the others.
constexpr qreal Corner = 4;

struct TabColours
{
    QColor paper;
    QColor ink;
    QColor outline;
};

} // namespace

Q_DECLARE_METATYPE(TabColours)

NoteTabs::NoteTabs(QWidget *parent) : QTabBar(parent)
{
    setObjectName(QStringLiteral("tabNotes"));
    setAccessibleName(tr("Notes"));
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::StrongFocus);
    setDocumentMode(true);
}

int NoteTabs::widestCaption()
{
    return WidestCaption;
}

void NoteTabs::setTitle(int tab, const QString &title)
{
    const QString shown = textShortening::shortened(title, WidestCaption, font());
    // The text of a tab marks a letter after "&"; doubled it is the character itself.
    setTabText(tab, QString(shown).replace(u'&', QLatin1String("&&")));
    setTabToolTip(tab, toolTips::plain(title));
}

QString NoteTabs::caption(int tab) const
{
    return tabText(tab).replace(QLatin1String("&&"), QLatin1String("&"));
}

void NoteTabs::setInk(int tab, const NoteInk &ink)
{
    setTabData(tab, QVariant::fromValue(TabColours{ink.paper, ink.ink, ink.outline}));
    update();
}

void NoteTabs::setEmpty(int tab)
{
    setTabText(tab, {});
    setTabToolTip(tab, {});
    setTabData(tab, {});
}

QSize NoteTabs::tabSizeHint(int index) const
{
    return {fontMetrics().horizontalAdvance(caption(index)) + 2 * SidePadding, TabHeight};
}

QSize NoteTabs::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void NoteTabs::keyPressEvent(QKeyEvent *event)
{
    // With Ctrl they are the text's.
    if (event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else if (event->key() == Qt::Key_Home)
        setCurrentIndex(0);
    else if (event->key() == Qt::Key_End)
        setCurrentIndex(count() - 1);
    else
        QTabBar::keyPressEvent(event);
}

void NoteTabs::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < count(); ++i)
        if (i != currentIndex())
            paintTab(painter, i);
    if (currentIndex() >= 0)
        paintTab(painter, currentIndex());
}

void NoteTabs::paintTab(QPainter &painter, int index) const
{
    const bool chosen = index == currentIndex();
    const bool hasNote = tabData(index).isValid();
    const auto colours = hasNote ? tabData(index).value<TabColours>()
                                 : TabColours{palette().color(QPalette::Base), palette().color(QPalette::Text),
                                              palette().color(QPalette::Mid)};
    const QRectF tab = QRectF(tabRect(index)).adjusted(1.5, chosen ? 0.5 : Raise + 0.5, -0.5, Corner);
    QColor paper = colours.paper;
    if (!chosen)
        paper = paper.lightnessF() > 0.2F ? paper.darker(108) : paper.lighter(130);
    painter.setPen(QPen(colours.outline, 1));
    painter.setBrush(paper);
    painter.drawRoundedRect(tab, Corner, Corner);
    QColor ink = colours.ink;
    ink.setAlphaF(chosen ? 1.0F : 0.75F);
    painter.setPen(ink);
    const QRect text = tabRect(index).adjusted(SidePadding, chosen ? 0 : Raise, -SidePadding, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, caption(index));
    if (chosen && hasNote && hasFocus()) {
        ink.setAlphaF(0.6F);
        painter.setPen(QPen(ink, 1));
        const int width = fontMetrics().horizontalAdvance(caption(index));
        painter.drawLine(text.left(), text.bottom() - 3, text.left() + width, text.bottom() - 3);
    }
}
