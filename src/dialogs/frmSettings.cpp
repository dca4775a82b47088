// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/frmSettings.h"

#include "alarms/AlarmEditor.h"
#include "controls/recordMerge.h"
#include "dialogs/AppearancePage.h"
#include "model/modCopyObject.h"
#include "model/recordFields.h"
#include "security/PasswordProtection.h"
#include "security/secrets.h"

frmSettings::frmSettings(Program &program, QWidget *owner)
    : TabbedDialog(program, u"frmSettings", tr("Current Quillet Settings"), owner),
      m_appearance(new AppearancePage(program, AppearanceFields::of(m_settings),
                                      {tr("Open picture file"), tr("Change font settin&gs")}, this)),
      m_protection(
          new PasswordProtection(program, PasswordFields::of(m_settings), PasswordProtection::WhenOff::Disabled, this)),
      m_alarm(new AlarmEditor(program, AlarmFields::of(m_settings), AlarmEditor::Place::NoteSettings, this))
{
    addPage(QStringLiteral("fraAppearanceOut"), tr("Appearance"), m_appearance, m_appearance->fontField());
    addPage(QStringLiteral("fraPasswordOut"), tr("Password"), m_protection, m_protection->firstField());
    addPage(QStringLiteral("fraAlarmOut"), tr("Alarm"), m_alarm, m_alarm->firstField());
    addButtons();
}

frmSettings::~frmSettings()
{
    secrets::wipe(m_opened.Pwd);
    secrets::wipe(m_settings.Pwd);
}

void frmSettings::Initialize(const clsNoteProps &note)
{
    modCopyObject::CopyNoteToSettings(note, m_settings);
    m_appearance->showFields();
    m_protection->Initialize();
    m_alarm->showFields();
    m_opened = m_settings;
}

bool frmSettings::SettingsResult(clsNoteProps &note)
{
    if (!isAccepted())
        return false;
    clsSettingsProps present;
    modCopyObject::CopyNoteToSettings(note, present);
    modCopyObject::CopySettingsToNote(recordMerge::merged(m_settings, m_opened, present,
                                                          recordFields::settings<clsSettingsProps>,
                                                          modAlarm::moment<clsSettingsProps>),
                                      note);
    note.SaveTag = 1;
    return true;
}

std::optional<Flaw> frmSettings::findFlaw()
{
    if (const auto flaw = m_appearance->findFlaw())
        return flaw;
    if (const auto flaw = m_alarm->attention().findFlaw())
        return flaw;
    // One that has gone off since is the note's own affair, whatever else was changed.
    return m_alarm->isAsShown() ? std::nullopt : m_alarm->findFlaw();
}
