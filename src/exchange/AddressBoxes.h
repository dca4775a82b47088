// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QStackedWidget>

class QPlainTextEdit;
class QTreeWidgetItem;

/// The boxes with the addresses of the aliases, of which one is seen: one for each alias, made when its alias is first
/// chosen. Where there is no alias a press or a key is told.
class AddressBoxes final : public QStackedWidget
{
    Q_OBJECT

public:
    explicit AddressBoxes(QWidget *parent);

    /// The addresses of an alias that has no box yet.
    void setLines(QTreeWidgetItem *alias, const QString &lines) { m_lines.insert(alias, lines); }
    /// As they are typed, each line behind the other with CR LF between.
    QString lines(QTreeWidgetItem *alias) const;
    /// Null: there is no alias.
    void show(QTreeWidgetItem *alias);
    void forget(QTreeWidgetItem *alias);

signals:
    void usedWithoutAlias();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPlainTextEdit *makeBox(QTreeWidgetItem *alias);

    QPlainTextEdit *m_none;
    QHash<QTreeWidgetItem *, QString> m_lines;
    QHash<QTreeWidgetItem *, QPlainTextEdit *> m_boxes;
};
