// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/PasswordProtection.h"

#include "controls/CheckRow.h"
#include "forms/Program.h"
#include "forms/showModally.h"
#include "platform/Prompts.h"
#include "security/frmChangePwd.h"
#include "security/frmNewPwd.h"
#include "security/noteLocks.h"
#include "security/secrets.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int Indent = 22;
constexpr int Spacing = 4;

/// The password that the dialog was given; empty when it was cancelled or went.
QString askFor(const QPointer<NewPasswordDialog> &dialog)
{
    if (!showModally(dialog))
        return {};
    const QString password = dialog->requestPassword();
    dialog->unload();
    return password;
}

} // namespace

PasswordProtection::PasswordProtection(Program &program, PasswordFields fields, WhenOff whenOff, QWidget *parent)
    : QWidget(parent), m_program(program), m_fields(fields), m_whenOff(whenOff),
      m_protection(new CheckRow(QStringLiteral("Pwd"), tr("Password &enabled"), this)), m_choices(new QFrame(this)),
      m_openClose(new CheckRow(QStringLiteral("Pwd1"), tr("&Open / Close"), m_choices)),
      m_readOnly(new CheckRow(QStringLiteral("Pwd2"), tr("&Read-only"), m_choices)),
      m_change(new QPushButton(tr("C&hange password"), m_choices))
{
    m_protection->caption()->setObjectName(QStringLiteral("lblPwdHead"));
    m_choices->setObjectName(QStringLiteral("fraPasswordIn"));
    m_change->setObjectName(QStringLiteral("cmdChangePwd"));
    m_change->setMinimumWidth(m_change->sizeHint().width() + Indent);
    m_openClose->explain(tr("The note opens locked."));
    m_readOnly->explain(tr("Changing or sending the note asks for the password."));
    layOut();
    connect(m_protection->box(), &QCheckBox::clicked, this, &PasswordProtection::protectionClicked);
    connectChoice(m_openClose, m_fields.PwdOpenCloseOn);
    connectChoice(m_readOnly, m_fields.PwdReadonlyOn);
    connect(m_change, &QPushButton::clicked, this, &PasswordProtection::changePassword);
}

void PasswordProtection::layOut()
{
    auto *choices = new QVBoxLayout(m_choices);
    choices->setContentsMargins(Indent, 0, 0, 0);
    choices->setSpacing(Spacing);
    choices->addWidget(m_openClose);
    choices->addWidget(m_readOnly);
    choices->addSpacing(2 * Spacing);
    choices->addWidget(m_change, 0, Qt::AlignLeft);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    layout->setSpacing(Spacing);
    layout->addWidget(m_protection);
    layout->addWidget(m_choices);
    layout->addStretch();
}

void PasswordProtection::connectChoice(CheckRow *row, bool &field)
{
    connect(row->box(), &QCheckBox::clicked, this, [&field](bool on) { field = on; });
}

void PasswordProtection::Initialize()
{
    m_hadPassword = m_fields.PwdOn;
    showChoices();
}

QWidget *PasswordProtection::firstField() const
{
    return m_protection->box();
}

void PasswordProtection::showChoices()
{
    m_protection->box()->setChecked(m_fields.PwdOn);
    m_choices->setEnabled(m_fields.PwdOn);
    showChoice(m_openClose, m_fields.PwdOpenCloseOn);
    showChoice(m_readOnly, m_fields.PwdReadonlyOn);
}

void PasswordProtection::showChoice(CheckRow *row, bool on)
{
    const bool grey = m_whenOff == WhenOff::Grey && !m_fields.PwdOn;
    row->box()->setTristate(grey);
    if (grey)
        row->box()->setCheckState(Qt::PartiallyChecked);
    else
        row->box()->setChecked(on);
}

void PasswordProtection::protectionClicked(bool on)
{
    if (on == m_fields.PwdOn)
        return;
    if (on)
        switchOn();
    else
        switchOff();
}

void PasswordProtection::switchOn()
{
    const QPointer<PasswordProtection> self = this;
    const QString password = askFor(new frmNewPwd(m_program, QWidget::window()));
    if (self == nullptr)
        return;
    if (password.isEmpty()) {
        refuse(tr("Enabling password protection failed."), tr("Enabling failed"));
        return;
    }
    m_fields.Pwd = password;
    m_fields.PwdOn = true;
    showChoices();
}

void PasswordProtection::switchOff()
{
    const QPointer<PasswordProtection> self = this;
    const bool allowed = !m_hadPassword || noteLocks::AuthenticateNote(m_program, tr("Disabling password protection."),
                                                                       m_fields.Pwd, QWidget::window());
    if (self == nullptr)
        return;
    if (allowed)
        clearProtection();
    else
        refuse(tr("Disabling password protection failed."), tr("Disabling failed"));
}

void PasswordProtection::clearProtection()
{
    m_fields.PwdOn = false;
    secrets::wipe(m_fields.Pwd);
    showChoices();
}

void PasswordProtection::changePassword()
{
    const QPointer<PasswordProtection> self = this;
    const QPointer<frmChangePwd> dialog = new frmChangePwd(m_program, QWidget::window());
    dialog->Initialize(m_fields.Pwd);
    const QString password = askFor(dialog.data());
    if (self == nullptr)
        return;
    if (password.isEmpty())
        refuse(tr("Password change failed. "), tr("Change failed"));
    else
        m_fields.Pwd = password;
}

/// The box goes back to what is stored before the person is told.
void PasswordProtection::refuse(const QString &text, const QString &caption)
{
    showChoices();
    m_program.prompts().tell({text, caption}, QWidget::window());
}
