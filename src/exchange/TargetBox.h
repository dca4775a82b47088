// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

/// Where a note goes: typed, or chosen from the list of those used of late. The first entry of the list opens a book
/// instead. Arrow keys and the wheel open the list and leave the text alone.
class TargetBox final : public QComboBox
{
    Q_OBJECT

public:
    TargetBox(const QString &bookEntry, QWidget *parent);

    void setRecent(const QStringList &texts);
    QStringList recent() const;
    /// Below the recent ones, while the list is open.
    void addNearby(const QString &text);

signals:
    void listOpened();
    void listClosed();
    /// From the event loop; the text is empty.
    void bookWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void choose(int index);
    void closeList();

    int m_recent = 0;      ///< Entries behind the first.
    bool m_isOpen = false; ///< The list.
};
