// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/NewPasswordDialog.h"

#include "security/secrets.h"

#include <QLineEdit>

void NewPasswordDialog::addNewPasswordBoxes(const QString &first, const QString &second)
{
    m_first = addBox(QStringLiteral("1"), first);
    m_second = addBox(QStringLiteral("2"), second);
}

QString NewPasswordDialog::requestPassword() const
{
    return isAccepted() ? m_first->text() : QString();
}

std::optional<Flaw> NewPasswordDialog::findFlaw()
{
    if (m_first->text() != m_second->text()) {
        secrets::wipe(*m_first);
        secrets::wipe(*m_second);
        return Flaw{{tr("Sorry.  These passwords do not match.  Please try again.")}, m_first};
    }
    if (m_first->text().isEmpty())
        return Flaw{{tr("Sorry.  You must enter a non-zero length password.")}, m_first};
    return std::nullopt;
}
