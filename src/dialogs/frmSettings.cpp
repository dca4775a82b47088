// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/frmSettings.h"

#include "dialogs/AlarmPage.h"
#include "dialogs/AppearancePage.h"
#include "model/modCopyObject.h"
#include "security/PasswordProtection.h"
#include "security/secrets.h"

namespace
{

enum Page
{
    Appearance,
    Password,
    Alarm
};

} // namespace

frmSettings::frmSettings(Program &program, QWidget *owner)
    : TabbedDialog(program, QStringLiteral("frmSettings"), tr("Current Quillet Settings"), owner),
      m_appearance(new AppearancePage(program, AppearanceFields::of(m_settings),
                                      {tr("Open picture file"), tr("Change font settin&gs")}, this)),
      m_protection(
          new PasswordProtection(program, PasswordFields::of(m_settings), PasswordProtection::WhenOff::Disabled, this)),
      m_alarm(new AlarmPage(program, m_settings, this))
{
    addPage(QStringLiteral("fraAppearanceOut"), tr("Appearance"), m_appearance, m_appearance->fontField());
    addPage(QStringLiteral("fraPasswordOut"), tr("Password"), m_protection, m_protection->firstField());
    addPage(QStringLiteral("fraAlarmOut"), tr("Alarm"), m_alarm, m_alarm->firstField());
    addButtons();
}

frmSettings::~frmSettings()
{
    secrets::wipe(m_settings.Pwd);
}

void frmSettings::Initialize(const clsNoteProps &note)
{
    modCopyObject::CopyNoteToSettings(note, m_settings);
    m_appearance->showFields();
    m_protection->Initialize();
    m_alarm->showFields();
}

bool frmSettings::SettingsResult(clsNoteProps &note)
{
    if (result() != Accepted)
        return false;
    modCopyObject::CopySettingsToNote(m_settings, note);
    note.SaveTag = 1;
    return true;
}

bool frmSettings::isInOrder()
{
    if (!m_appearance->isComplete()) {
        select(Appearance, m_appearance->pictureField());
        return false;
    }
    if (!m_alarm->attention().isComplete()) {
        select(Alarm, m_alarm->attention().soundField());
        return false;
    }
    if (m_alarm->isAhead())
        return true;
    select(Alarm, m_alarm->dateField());
    return false;
}
