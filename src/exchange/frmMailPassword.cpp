// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "exchange/frmMailPassword.h"

#include "controls/CheckRow.h"
#include "controls/dialogButtons.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{
constexpr int Margin = 14;
}

frmMailPassword::frmMailPassword(Program &program, const QString &account, QWidget *owner)
    : ModalDialog(program, u"frmMailPassword", tr("Mail server - Quillets"), owner), m_password(new QLineEdit(this)),
      m_keep(new CheckRow(QStringLiteral("Keep"), tr("&Keep it in the keyring of the desktop"), this))
{
    auto *caption = new QLabel(tr("&Password of %1:").arg(QString(account).replace(u'&', QStringLiteral("&&"))), this);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(m_password);
    m_password->setObjectName(QStringLiteral("txtPassword"));
    m_password->setAccessibleName(tr("Password"));
    m_password->setEchoMode(QLineEdit::Password);
    m_keep->box()->setChecked(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(caption);
    layout->addWidget(m_password);
    layout->addWidget(m_keep);
    layout->addSpacing(Margin / 2);
    layout->addWidget(
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}}));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_password->setFocus();
}

QString frmMailPassword::password() const
{
    return m_password->text();
}

bool frmMailPassword::isToBeKept() const
{
    return m_keep->box()->isChecked();
}
