// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/ProgramKeys.h"

#include <QApplication>
#include <QKeyEvent>

namespace
{

struct Row
{
    QKeyCombination keys;
    PanelCommand command;
};

constexpr Row Rows[] = {
    {Qt::CTRL | Qt::Key_N, PanelCommand::New},
    {Qt::CTRL | Qt::Key_F, PanelCommand::Find},
    {Qt::CTRL | Qt::Key_S, PanelCommand::Save},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_H, PanelCommand::ShowOrHideAll},
};

} // namespace

ProgramKeys::ProgramKeys(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool ProgramKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWindowType() || QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    for (const Row &row : Rows) {
        if (row.keys != key.keyCombination())
            continue;
        // One press does one thing, however long it lasts.
        if (!key.isAutoRepeat())
            emit commanded(row.command);
        return true;
    }
    return false;
}
