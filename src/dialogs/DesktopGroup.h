// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Flaw.h"
#include "model/clsKeySettings.h"

#include <QGroupBox>

class CheckRow;
class QFormLayout;
class QKeySequenceEdit;

/// The group of the options that edits what the desktop does for the program: the start at log-in, which the desktop
/// keeps, and the keys for all programs, where it gives some away.
class DesktopGroup final : public QGroupBox
{
    Q_OBJECT

public:
    explicit DesktopGroup(QWidget *dialog);

    /// There is something of it on this system.
    static bool isSupported();
    void setFields(bool atLogIn, const clsKeySettings &keys);
    bool atLogIn() const;
    clsKeySettings keys() const;
    std::optional<Flaw> findFlaw() const;

private:
    QKeySequenceEdit *addKeys(QFormLayout &rows, const char *name, const QString &caption);

    CheckRow *m_atLogIn = nullptr;
    QKeySequenceEdit *m_newNote = nullptr;
    QKeySequenceEdit *m_showOrHideAll = nullptr;
};
