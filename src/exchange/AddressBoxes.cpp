// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/AddressBoxes.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QTreeWidget>

AddressBoxes::AddressBoxes(QWidget *parent) : QStackedWidget(parent), m_none(new QPlainTextEdit(this))
{
    // The letter of its caption leads to no widget without a policy.
    setFocusPolicy(Qt::ClickFocus);
    m_none->setObjectName(QStringLiteral("txtNoAddress"));
    m_none->setAccessibleName(tr("Addresses"));
    m_none->setReadOnly(true);
    m_none->setTabChangesFocus(true);
    m_none->installEventFilter(this);
    m_none->viewport()->installEventFilter(this);
    addWidget(m_none);
}

QString AddressBoxes::lines(QTreeWidgetItem *alias) const
{
    const QPlainTextEdit *box = m_boxes.value(alias);
    return box != nullptr ? box->toPlainText().replace(u'\n', QStringLiteral("\r\n")) : m_lines.value(alias);
}

QPlainTextEdit *AddressBoxes::makeBox(QTreeWidgetItem *alias)
{
    auto *box = new QPlainTextEdit(this);
    box->setObjectName(QStringLiteral("txtAddress(%1)").arg(alias->treeWidget()->indexOfTopLevelItem(alias)));
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setPlainText(m_lines.take(alias));
    addWidget(box);
    // It is younger than what comes behind it.
    setTabOrder(m_none, box);
    m_boxes.insert(alias, box);
    return box;
}

void AddressBoxes::show(QTreeWidgetItem *alias)
{
    QPlainTextEdit *box = alias == nullptr ? m_none : m_boxes.value(alias);
    if (box == nullptr)
        box = makeBox(alias);
    if (alias != nullptr)
        box->setAccessibleName(tr("Addresses of %1").arg(alias->text(0)));
    setCurrentWidget(box);
    setFocusProxy(box);
}

void AddressBoxes::forget(QTreeWidgetItem *alias)
{
    m_lines.remove(alias);
    if (QPlainTextEdit *box = m_boxes.take(alias)) {
        removeWidget(box);
        box->deleteLater();
    }
}

bool AddressBoxes::eventFilter(QObject *, QEvent *event)
{
    const bool isTyped =
        event->type() == QEvent::KeyPress && !static_cast<QKeyEvent *>(event)->text().trimmed().isEmpty();
    // A press that the box ignores would come once more, from around its text.
    const bool isUse = isTyped || event->type() == QEvent::MouseButtonPress;
    if (isUse)
        QMetaObject::invokeMethod(this, &AddressBoxes::usedWithoutAlias, Qt::QueuedConnection);
    return isUse;
}
