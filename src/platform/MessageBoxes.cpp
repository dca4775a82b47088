// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/MessageBoxes.h"

#include "platform/WindowStacking.h"

#include <QMessageBox>

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
    return box.exec() == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}
