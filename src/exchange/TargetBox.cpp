// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/TargetBox.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace
{
constexpr int UsualLength = 36; // letters
}

TargetBox::TargetBox(const QString &bookEntry, QWidget *parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("comTo"));
    setEditable(true);
    setInsertPolicy(NoInsert);
    // One address is often the beginning of another.
    setCompleter(nullptr);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(UsualLength);
    addItem(bookEntry);
    setCurrentIndex(-1);
    connect(this, &QComboBox::activated, this, &TargetBox::choose);
}

void TargetBox::setRecent(const QStringList &texts)
{
    const QString typed = currentText();
    while (count() > 1)
        removeItem(1);
    addItems(texts);
    setCurrentIndex(-1);
    setEditText(typed);
}

void TargetBox::choose(int index)
{
    if (index != 0)
        return;
    setCurrentIndex(-1);
    clearEditText();
    QMetaObject::invokeMethod(this, &TargetBox::bookWanted, Qt::QueuedConnection);
}

void TargetBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        showPopup();
    else
        QComboBox::keyPressEvent(event);
}

void TargetBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
