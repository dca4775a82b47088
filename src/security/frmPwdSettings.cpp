// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "security/frmPwdSettings.h"

#include "controls/dialogButtons.h"
#include "controls/recordMerge.h"
#include "model/modCopyObject.h"
#include "model/recordFields.h"
#include "security/PasswordProtection.h"
#include "security/secrets.h"

#include <QVBoxLayout>

namespace
{
constexpr int Margin = 18;
constexpr int LeastWidth = 360;
} // namespace

frmPwdSettings::frmPwdSettings(Program &program, QWidget *owner)
    : ModalDialog(program, u"frmPwdSettings", tr("Password Settings"), owner),
      m_protection(
          new PasswordProtection(program, PasswordFields::of(m_props), PasswordProtection::WhenOff::Grey, this))
{
    setMinimumWidth(LeastWidth);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_protection, 1);
    layout->addWidget(
        dialogButtons::make(*this, {{QDialogButtonBox::Ok, "OKButton"}, {QDialogButtonBox::Cancel, "CancelButton"}}));
    m_protection->Initialize();
}

frmPwdSettings::~frmPwdSettings()
{
    secrets::wipe(m_opened.Pwd);
    secrets::wipe(m_props.Pwd);
}

void frmPwdSettings::Initialize(const clsNoteProps &note)
{
    modCopyObject::CopyNoteToPwd(note, m_opened);
    m_props = m_opened;
    m_protection->Initialize();
}

bool frmPwdSettings::PwdResult(clsNoteProps &note)
{
    if (!isAccepted())
        return false;
    if (!m_props.PwdOn)
        secrets::wipe(m_props.Pwd);
    clsPwdProps present;
    modCopyObject::CopyNoteToPwd(note, present);
    modCopyObject::CopyPwdToNote(
        recordMerge::merged(m_props, m_opened, present, recordFields::password<clsPwdProps>, std::tuple<>()), note);
    note.SaveTag = 1;
    return true;
}
