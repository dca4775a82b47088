// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "restore/KeptNotesModel.h"

#include "drawing/NoteInk.h"
#include "drawing/textShortening.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{

constexpr int RowHeight = 22;
constexpr int SwatchSide = 14;
constexpr qsizetype LongestShown = 200; ///< Characters; no column is wider.

/// The same where its row is chosen: a tint would be another colour.
QIcon swatch(const clsNoteProps &note)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(SwatchSide, SwatchSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    const NoteInk ink = NoteInk::from(note.BackColor, note.ForeColor);
    pixmap.fill(ink.outline);
    QPainter(&pixmap).fillRect(QRect(1, 1, SwatchSide - 2, SwatchSide - 2), ink.paper);
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QString firstLine(const QString &text)
{
    const auto isPrinted = [](QChar c) { return !c.isSpace(); };
    const auto begin = std::find_if(text.begin(), text.end(), isPrinted);
    const QString rest = text.mid(begin - text.begin(), LongestShown);
    const auto end = std::find_if(rest.begin(), rest.end(), [](QChar c) { return c == u'\r' || c == u'\n'; });
    return textShortening::onOneLine(rest.first(end - rest.begin()));
}

QString standingText(Standing standing)
{
    switch (standing) {
    case Standing::Gone:
        return KeptNotesModel::tr("gone");
    case Standing::Changed:
        return KeptNotesModel::tr("changed");
    case Standing::Same:
        break;
    }
    return KeptNotesModel::tr("the same");
}

} // namespace

void KeptNotesModel::setNotes(std::vector<KeptNote> notes)
{
    beginResetModel();
    m_notes = std::move(notes);
    endResetModel();
}

void KeptNotesModel::uncover(int row)
{
    m_notes[static_cast<size_t>(row)].password.reset();
    emit dataChanged(index(row, 0), index(row, Columns - 1));
}

void KeptNotesModel::choose(int row, bool chosen)
{
    m_notes[static_cast<size_t>(row)].isChosen = chosen;
    emit dataChanged(index(row, Title), index(row, Title));
}

int KeptNotesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_notes.size());
}

int KeptNotesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QString KeptNotesModel::text(const KeptNote &kept, int column) const
{
    switch (column) {
    case Title:
        return kept.note.TitleBarTitle.isEmpty()
                   ? tr("(no title)")
                   : textShortening::onOneLine(kept.note.TitleBarTitle.left(LongestShown));
    case FirstLine:
        return kept.isCovered() ? tr("(locked)") : firstLine(kept.note.Data);
    case Today:
        return standingText(kept.standing);
    default:
        return textShortening::onOneLine(kept.note.DateCreated.left(LongestShown));
    }
}

QVariant KeptNotesModel::data(const QModelIndex &index, int role) const
{
    const KeptNote &kept = at(index.row());
    if (role == Qt::DisplayRole)
        return text(kept, index.column());
    if (role == Qt::SizeHintRole)
        return QSize(0, RowHeight);
    if (index.column() != Title)
        return {};
    if (role == Qt::DecorationRole)
        return swatch(kept.note);
    if (role == Qt::CheckStateRole)
        return kept.isChosen ? Qt::Checked : Qt::Unchecked;
    return {};
}

QVariant KeptNotesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const std::array<QString, Columns> heads{tr("Title"), tr("Text"), tr("Today"), tr("Created")};
    return heads[static_cast<size_t>(section)];
}

Qt::ItemFlags KeptNotesModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == Title ? usual | Qt::ItemIsUserCheckable : usual;
}

bool KeptNotesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Title)
        return false;
    choose(index.row(), value.toInt() == Qt::Checked);
    return true;
}

ShownNotes::ShownNotes(KeptNotesModel &notes) : QSortFilterProxyModel(&notes), m_notes(notes)
{
    setSourceModel(&notes);
    setDynamicSortFilter(false);
}

void ShownNotes::setAll(bool all)
{
    m_all = all;
    invalidateFilter();
}

void ShownNotes::setWords(const QString &words)
{
    m_words = words.trimmed();
    invalidateFilter();
}

/// A covered text is not searched: that would tell what is in it.
bool ShownNotes::filterAcceptsRow(int row, const QModelIndex &) const
{
    const KeptNote &kept = m_notes.at(row);
    if (!m_all && kept.standing == Standing::Same)
        return false;
    const auto holds = [this](const QString &text) { return text.contains(m_words, Qt::CaseInsensitive); };
    return m_words.isEmpty() || holds(kept.note.TitleBarTitle) || (!kept.isCovered() && holds(kept.note.Data));
}
