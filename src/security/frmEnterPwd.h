// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "security/PasswordDialog.h"

/// Asks for a note's password. It compares only when its caller asks, and forgets what was typed when it goes.
class frmEnterPwd final : public PasswordDialog
{
    Q_OBJECT

public:
    static constexpr QStringView Name = u"frmEnterPwd";

    frmEnterPwd(Program &program, QWidget *owner);

    void Initialize(const QString &description);
    /// True when OK was chosen and what was typed is exactly the stored password; Cancel is never a right password.
    bool passOn(const QString &stored) const;
    /// Pixels that the description has, and its font, for callers that shorten a title to it.
    static int descriptionWidth();
    static QFont descriptionFont();

private:
    QLabel *m_desc;
    QLineEdit *m_entry;
};
