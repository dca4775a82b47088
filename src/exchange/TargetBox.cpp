// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/TargetBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

namespace
{
constexpr int UsualLength = 36; // letters
constexpr int MostEntries = 50;
} // namespace

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
    m_recent = static_cast<int>(texts.size());
    setCurrentIndex(-1);
    setEditText(typed);
}

QStringList TargetBox::recent() const
{
    QStringList texts;
    for (int i = 1; i <= m_recent; ++i)
        texts.append(itemText(i));
    return texts;
}

void TargetBox::addNearby(const QString &text)
{
    if (!m_isOpen || count() >= MostEntries || findText(text, Qt::MatchFixedString) >= 0)
        return;
    addItem(text);
    QWidget &list = *view()->window();
    const int height = list.height() + view()->sizeHintForRow(0);
    if (list.y() + height < list.screen()->availableGeometry().bottom())
        list.resize(list.width(), height);
}

void TargetBox::showPopup()
{
    m_isOpen = true;
    QComboBox::showPopup();
    view()->window()->installEventFilter(this);
    emit listOpened();
}

bool TargetBox::eventFilter(QObject *watched, QEvent *event)
{
    // What was chosen is still being told.
    if (event->type() == QEvent::Hide && watched == view()->window())
        QMetaObject::invokeMethod(this, &TargetBox::closeList, Qt::QueuedConnection);
    return QComboBox::eventFilter(watched, event);
}

void TargetBox::closeList()
{
    if (!m_isOpen || view()->isVisible())
        return;
    m_isOpen = false;
    const QString typed = currentText();
    while (count() > 1 + m_recent)
        removeItem(count() - 1);
    setCurrentIndex(-1);
    setEditText(typed);
    emit listClosed();
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
