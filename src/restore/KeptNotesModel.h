// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "restore/keptNotes.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// The notes of one copy as a table. Of a covered note it tells the title alone.
class KeptNotesModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Title, ///< With the mark of a chosen note and a swatch of its colour.
        FirstLine,
        Today,
        Created,
        Columns
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setNotes(std::vector<KeptNote> notes);
    const KeptNote &at(int row) const { return m_notes[static_cast<size_t>(row)]; }
    const std::vector<KeptNote> &notes() const { return m_notes; }
    /// The password was given.
    void uncover(int row);
    void choose(int row, bool chosen);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    QString text(const KeptNote &note, int column) const;

    std::vector<KeptNote> m_notes;
};

/// Those of them that are to be seen: what differs from today, or all; with the words of the filter.
class ShownNotes final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ShownNotes(KeptNotesModel &notes);

    void setAll(bool all);
    void setWords(const QString &words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    const KeptNotesModel &m_notes;
    bool m_all = false;
    QString m_words;
};
