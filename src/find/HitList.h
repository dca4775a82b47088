// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "find/Hit.h"

#include <QAbstractListModel>
#include <QListView>

/// The list of what was found: colour, title and home of each note, and below them the line of the place.
class HitList final : public QListView
{
    Q_OBJECT

public:
    explicit HitList(QWidget *parent);

    /// Replaces what is shown; the first row is chosen.
    void showHits(std::vector<Hit> hits);
    void append(const std::vector<Hit> &hits);
    int count() const { return m_model->rowCount(); }
    /// Null when there is none.
    const Hit *chosen() const;

signals:
    void opened();

private:
    class Model final : public QAbstractListModel
    {
    public:
        using QAbstractListModel::QAbstractListModel;

        int rowCount(const QModelIndex & = {}) const override { return static_cast<int>(hits.size()); }
        QVariant data(const QModelIndex &index, int role) const override;
        void replace(std::vector<Hit> with);
        void append(const std::vector<Hit> &more);

        std::vector<Hit> hits;
    };
    class Painter;

    Model *m_model;
};
