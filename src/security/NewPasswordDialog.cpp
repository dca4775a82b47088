// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/NewPasswordDialog.h"

#include "security/secrets.h"

#include <QLineEdit>

NewPasswordDialog::~NewPasswordDialog()
{
    wipeBoxes();
    secrets::wipe(m_password);
}

void NewPasswordDialog::addNewPasswordBoxes(const QString &first, const QString &second)
{
    m_first = addBox(QStringLiteral("1"), first);
    m_second = addBox(QStringLiteral("2"), second);
}

void NewPasswordDialog::accept()
{
    if (!mayChange())
        return;
    if (m_first->text() != m_second->text()) {
        tell(tr("Sorry.  These passwords do not match.  Please try again."));
        secrets::wipe(*m_first);
        secrets::wipe(*m_second);
        m_first->setFocus();
    } else if (m_first->text().isEmpty()) {
        tell(tr("Sorry.  You must enter a non-zero length password."));
        m_first->setFocus();
    } else {
        m_password = m_first->text();
        PasswordDialog::accept();
    }
}

void NewPasswordDialog::reject()
{
    wipeBoxes();
    secrets::wipe(m_password);
    PasswordDialog::reject();
}
