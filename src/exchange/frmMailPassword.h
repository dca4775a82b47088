// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"

class CheckRow;
class QLineEdit;

/// Asks for the password of the mail server.
class frmMailPassword final : public ModalDialog
{
    Q_OBJECT

public:
    /// `account` is what it is the password of, as the user knows it.
    frmMailPassword(Program &program, const QString &account, QWidget *owner);

    QString password() const;
    /// In the desktop's keyring.
    bool isToBeKept() const;

private:
    QLineEdit *m_password; // txtPassword
    CheckRow *m_keep;      // chkKeep
};
