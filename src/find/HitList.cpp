// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "find/HitList.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>

namespace
{

constexpr int Pad = 6;
constexpr int Swatch = 22;
constexpr int Between = 2;
constexpr float FaintOpacity = 0.7F;

QString placeOf(const Hit &hit)
{
    return hit.isInStack ? HitList::tr("NoteStack") : HitList::tr("Desktop");
}

QString lineOf(const Hit &hit)
{
    return hit.isLocked ? HitList::tr("Locked") : hit.line;
}

/// One line of text with the found part in bold, cut at the end of the room.
void drawMarked(QPainter &painter, const QRect &room, const QString &text, const std::optional<TextPart> &part)
{
    QTextLayout layout(text, painter.font());
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    if (part && part->length > 0) {
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        layout.setFormats({{static_cast<int>(part->at), static_cast<int>(part->length), bold}});
    }
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(room.width());
    layout.endLayout();
    painter.save();
    painter.setClipRect(room);
    layout.draw(&painter, room.topLeft());
    painter.restore();
}

} // namespace

QVariant HitList::Model::data(const QModelIndex &index, int role) const
{
    const Hit &hit = hits[static_cast<size_t>(index.row())];
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    return QStringList{hit.title, placeOf(hit), lineOf(hit)}.join(QStringLiteral(", "));
}

void HitList::Model::replace(std::vector<Hit> with)
{
    beginResetModel();
    hits = std::move(with);
    endResetModel();
}

void HitList::Model::append(const std::vector<Hit> &more)
{
    if (more.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(more.size()) - 1);
    hits.insert(hits.end(), more.begin(), more.end());
    endInsertRows();
}

class HitList::Painter final : public QStyledItemDelegate
{
public:
    Painter(const Model &model, QObject *parent) : QStyledItemDelegate(parent), m_model(model) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {0, 2 * option.fontMetrics.height() + Between + 2 * Pad};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Hit &hit = m_model.hits[static_cast<size_t>(index.row())];
        const bool isChosen = option.state.testFlag(QStyle::State_Selected);
        const QColor ink = option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text);
        QColor faint = ink;
        faint.setAlphaF(FaintOpacity);
        if (isChosen)
            painter->fillRect(option.rect, option.palette.highlight());
        const QRect room = option.rect.adjusted(Pad, Pad, -Pad, -Pad);
        paintSwatch(*painter, {room.left(), room.center().y() - Swatch / 2, Swatch, Swatch}, hit.paper, faint);
        const int left = room.left() + Swatch + Pad;
        const int height = option.fontMetrics.height();
        const QString place = placeOf(hit);
        const int placeWidth = option.fontMetrics.horizontalAdvance(place);
        painter->setFont(option.font);
        painter->setPen(faint);
        painter->drawText(QRect(room.right() - placeWidth, room.top(), placeWidth + 1, height), place);
        drawMarked(*painter, {left, room.top() + height + Between, room.right() - left, height}, lineOf(hit),
                   hit.inLine);
        painter->setPen(ink);
        drawMarked(*painter, {left, room.top(), room.right() - left - placeWidth - Pad, height}, hit.title,
                   hit.inTitle);
    }

private:
    static void paintSwatch(QPainter &painter, const QRect &place, const QColor &paper, const QColor &edge)
    {
        painter.fillRect(place, edge);
        painter.fillRect(place.adjusted(1, 1, -1, -1), paper);
    }

    const Model &m_model;
};

HitList::HitList(QWidget *parent) : QListView(parent), m_model(new Model(this))
{
    setObjectName(QStringLiteral("lstHits"));
    setModel(m_model);
    setItemDelegate(new Painter(*m_model, this));
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Notes found"));
    connect(this, &QListView::activated, this, &HitList::opened);
}

void HitList::showHits(std::vector<Hit> hits)
{
    m_model->replace(std::move(hits));
    if (count() > 0)
        setCurrentIndex(m_model->index(0));
}

void HitList::append(const std::vector<Hit> &hits)
{
    m_model->append(hits);
    if (chosen() == nullptr && count() > 0)
        setCurrentIndex(m_model->index(0));
}

const Hit *HitList::chosen() const
{
    const QModelIndex index = currentIndex();
    return index.isValid() ? &m_model->hits[static_cast<size_t>(index.row())] : nullptr;
}
