// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "security/PasswordDialog.h"

/// A dialog in which a new password is typed twice. OK closes it only when both are the same and not empty.
class NewPasswordDialog : public PasswordDialog
{
    Q_OBJECT

public:
    ~NewPasswordDialog() override;

    /// The accepted password; empty when cancelled.
    QString requestPassword() const { return m_password; }

protected:
    using PasswordDialog::PasswordDialog;

    void addNewPasswordBoxes(const QString &first, const QString &second);
    /// Whatever else has to be right first; says itself what is not.
    virtual bool mayChange() { return true; }
    void accept() override;
    void reject() override;

private:
    QLineEdit *m_first = nullptr;
    QLineEdit *m_second = nullptr;
    QString m_password;
};
