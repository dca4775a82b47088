// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/PanelCommand.h"

#include <QMenu>

/// The context menu of the panel: what the panel has no row for. It is made anew at each opening and deletes itself.
class PanelMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit PanelMenu(QWidget *panel);

signals:
    void commanded(PanelCommand command);
};
