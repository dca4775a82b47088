// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "security/NewPasswordDialog.h"

/// Asks for a new password in place of the present one, which has to be given as well.
class frmChangePwd final : public NewPasswordDialog
{
    Q_OBJECT

public:
    frmChangePwd(Program &program, QWidget *owner);
    ~frmChangePwd() override;

    void Initialize(const QString &storedPassword);

protected:
    /// The present password comes first.
    std::optional<Flaw> findFlaw() override;

private:
    QLineEdit *m_current;
    QString m_stored;
};
