// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmPwdSettings.h"

#include "model/modCopyObject.h"
#include "security/PasswordProtection.h"
#include "security/secrets.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int Margin = 18;
constexpr int LeastWidth = 360;
} // namespace

frmPwdSettings::frmPwdSettings(Program &program, QWidget *owner)
    : QDialog(owner), Form(program.forms, QStringLiteral("frmPwdSettings")), m_program(program),
      m_protection(
          new PasswordProtection(program, PasswordFields::of(m_props), PasswordProtection::WhenOff::Grey, this))
{
    setObjectName(formName());
    setWindowTitle(tr("Password Settings"));
    setModal(true);
    setMinimumWidth(LeastWidth);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmPwdSettings::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmPwdSettings::reject);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_protection, 1);
    layout->addWidget(buttons);
    m_protection->Initialize();
}

frmPwdSettings::~frmPwdSettings()
{
    secrets::wipe(m_props.Pwd);
    modForms::ShowNoteWindows(m_program);
}

void frmPwdSettings::Initialize(const clsNoteProps &note)
{
    modCopyObject::CopyNoteToPwd(note, m_props);
    m_protection->Initialize();
}

bool frmPwdSettings::PwdResult(clsNoteProps &note)
{
    if (result() != Accepted)
        return false;
    if (!m_props.PwdOn)
        secrets::wipe(m_props.Pwd);
    modCopyObject::CopyPwdToNote(m_props, note);
    note.SaveTag = 1;
    return true;
}
