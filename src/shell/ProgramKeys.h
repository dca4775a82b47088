// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "shell/PanelCommand.h"

#include <QObject>

/// The keys that mean the same in every window of the program. They wait while a box, a dialog or a menu is open.
class ProgramKeys final : public QObject
{
    Q_OBJECT

public:
    /// Watches the keys of the whole program as long as it lives.
    explicit ProgramKeys(QObject *parent);

signals:
    void commanded(PanelCommand command);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
