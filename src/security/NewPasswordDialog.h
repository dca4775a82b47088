// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "security/PasswordDialog.h"

/// A dialog in which a new password is typed twice. OK closes it only when both are the same and not empty.
class NewPasswordDialog : public PasswordDialog
{
    Q_OBJECT

public:
    /// The accepted password; empty when cancelled.
    QString requestPassword() const;

protected:
    using PasswordDialog::PasswordDialog;

    void addNewPasswordBoxes(const QString &first, const QString &second);
    /// Empties boxes that do not agree.
    std::optional<Flaw> findFlaw() override;

private:
    QLineEdit *m_first = nullptr;
    QLineEdit *m_second = nullptr;
};
