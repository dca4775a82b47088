// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/SystemPrompts.h"

#include "platform/windowStacking.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace
{

QMessageBox::Icon iconOf(Message::Icon icon)
{
    switch (icon) {
    case Message::Icon::Exclamation:
        return QMessageBox::Warning;
    case Message::Icon::Critical:
        return QMessageBox::Critical;
    case Message::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

Prompts::Answer SystemPrompts::ask(const Message &message, QWidget *owner)
{
    // The owner may go while the box is open, and takes it along.
    const QPointer<QMessageBox> box = new QMessageBox(owner != nullptr && owner->isVisible() ? owner : nullptr);
    box->setObjectName(QStringLiteral("MessageBox"));
    box->setWindowTitle(message.caption);
    box->setTextFormat(Qt::PlainText);
    box->setText(message.text);
    box->setIcon(iconOf(message.icon));
    const bool cancel = message.buttons == Message::Buttons::OkCancel;
    box->setStandardButtons(cancel ? QMessageBox::Ok | QMessageBox::Cancel
                                   : QMessageBox::StandardButtons(QMessageBox::Ok));
    const QAbstractButton *second = nullptr;
    if (!message.second.isEmpty())
        second = box->addButton(message.second, QMessageBox::ActionRole);
    if (!message.details.isEmpty())
        box->setDetailedText(message.details);
    for (QAbstractButton *button : box->buttons())
        button->setIcon({}); // Some styles bring old ones.
    box->setDefaultButton(message.enter == Message::Enter::Ok ? QMessageBox::Ok : QMessageBox::Cancel);
    windowStacking::keepAboveNotes(*box);
    const QPointer<QWidget> window = owner;
    const bool isOk = box->exec() == QMessageBox::Ok && box != nullptr;
    const bool isSecond = box != nullptr && second != nullptr && box->clickedButton() == second;
    delete box;
    // Window managers give the focus to a window of the task bar, where notes are not.
    if (window != nullptr && window->isVisible())
        window->activateWindow();
    if (isSecond)
        return Answer::Second;
    return isOk ? Answer::Ok : Answer::Cancel;
}
