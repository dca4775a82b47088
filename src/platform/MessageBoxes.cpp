// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/MessageBoxes.h"

#include "platform/WindowStacking.h"

#include <QMessageBox>
#include <QPointer>

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

Prompts::Answer MessageBoxes::ask(const Message &message, QWidget *owner)
{
    QMessageBox box(owner != nullptr && owner->isVisible() ? owner : nullptr);
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(message.caption);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setIcon(iconOf(message.icon));
    const bool cancel = message.buttons == Message::Buttons::OkCancel;
    box.setStandardButtons(cancel ? QMessageBox::Ok | QMessageBox::Cancel
                                  : QMessageBox::StandardButtons(QMessageBox::Ok));
    box.setDefaultButton(QMessageBox::Ok);
    windowStacking::keepAboveNotes(box);
    const QPointer<QWidget> window = owner;
    const Answer answer = box.exec() == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
    // Window managers give the focus to a window of the task bar, where notes are not.
    if (window != nullptr && window->isVisible())
        window->activateWindow();
    return answer;
}
