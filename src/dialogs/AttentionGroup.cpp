// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/AttentionGroup.h"

#include "controls/CheckRow.h"
#include "controls/FileButton.h"
#include "controls/fileChoosing.h"
#include "platform/Prompts.h"
#include "forms/Program.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>

AttentionGroup::AttentionGroup(Program &program, AttentionFields fields, const QString &soundTitle, QWidget *parent)
    : QWidget(parent), m_program(program), m_fields(fields), m_soundTitle(soundTitle),
      m_flash(new CheckRow(QStringLiteral("Flash"), tr("&Flashing window"), this)),
      m_soundOn(new CheckRow(QStringLiteral("SoundFile"), tr("Play &sound (*.wav):"), this)),
      m_sound(new FileButton(QStringLiteral("cmdSoundFile"), tr("Sound file"), this))
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    grid->setVerticalSpacing(CheckRow::MarkRoom);
    grid->setColumnStretch(1, 1);
    grid->addWidget(new QLabel(tr("Getting attention:"), this), 0, 0, 1, 2);
    grid->addWidget(m_flash, 1, 0, 1, 2);
    grid->addWidget(m_soundOn, 2, 0);
    grid->addWidget(m_sound, 2, 1);
    connect(m_flash->box(), &QCheckBox::toggled, this, [this](bool on) { m_fields.FlashOn = on; });
    connect(m_soundOn->box(), &QCheckBox::toggled, this, [this](bool on) { m_fields.SoundFileOn = on; });
    connect(m_sound, &QPushButton::clicked, this, &AttentionGroup::chooseSound);
}

void AttentionGroup::showFields()
{
    m_flash->box()->setChecked(m_fields.FlashOn);
    m_soundOn->box()->setChecked(m_fields.SoundFileOn);
    m_sound->setPath(m_fields.SoundFile);
}

bool AttentionGroup::isComplete()
{
    if (!m_fields.SoundFileOn || !m_fields.SoundFile.isEmpty())
        return true;
    m_program.prompts().tell(
        {tr("You have selected to play a sound for the alarm.") + u'\n' + tr("Please enter a valid sound file."),
         tr("Alarm Sound Error"), Message::Icon::Critical},
        window());
    return false;
}

QWidget *AttentionGroup::soundSwitch() const
{
    return m_soundOn->box();
}

QWidget *AttentionGroup::soundField() const
{
    return m_sound;
}

void AttentionGroup::chooseSound()
{
    const QPointer<AttentionGroup> self = this;
    const auto chosen = fileChoosing::sound(m_program, m_soundTitle, m_fields.SoundFile, window());
    if (self == nullptr || !chosen)
        return;
    m_fields.SoundFile = *chosen;
    m_sound->setPath(m_fields.SoundFile);
}
