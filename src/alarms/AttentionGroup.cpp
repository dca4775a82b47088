// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/AttentionGroup.h"

#include "controls/CheckRow.h"
#include "controls/FileButton.h"
#include "controls/fileChoosing.h"
#include "drawing/Twips.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>

namespace
{

constexpr int Usual = -1; ///< The style's own spacing.

struct Manner
{
    const char *chooserTitle;
    fileChoosing::Cancelled cancelled;
    FileButton::Cut cut;
    int buttonTwips; ///< Design width of the button; 0: what room there is.
    int columnSpacing;
    int rowSpacing;
};

/// In the order of the places.
constexpr Manner Manners[] = {
    {.chooserTitle = QT_TRANSLATE_NOOP("AttentionGroup", "Open sound file"),
     .cancelled = fileChoosing::Cancelled::IsCurrent,
     .cut = FileButton::Cut::Back,
     .buttonTwips = 2600,
     .columnSpacing = 12,
     .rowSpacing = Usual},
    {.chooserTitle = QT_TRANSLATE_NOOP("AttentionGroup", "Open sound file"),
     .cancelled = fileChoosing::Cancelled::IsNothing,
     .cut = FileButton::Cut::Front,
     .buttonTwips = 0,
     .columnSpacing = Usual,
     .rowSpacing = CheckRow::MarkRoom},
    {.chooserTitle = QT_TRANSLATE_NOOP("AttentionGroup", "Open Sound File"),
     .cancelled = fileChoosing::Cancelled::IsNothing,
     .cut = FileButton::Cut::Front,
     .buttonTwips = 0,
     .columnSpacing = Usual,
     .rowSpacing = CheckRow::MarkRoom},
};

const Manner &mannerOf(AttentionGroup::Place place)
{
    return Manners[static_cast<size_t>(place)];
}

} // namespace

AttentionGroup::AttentionGroup(Program &program, AttentionFields fields, Place place, QWidget *parent)
    : QWidget(parent), m_program(program), m_fields(fields), m_place(place),
      m_flash(new CheckRow(QStringLiteral("Flash"), tr("&Flashing window"), this)),
      m_soundOn(new CheckRow(QStringLiteral("SoundFile"), tr("Play &sound (*.wav):"), this)),
      m_sound(new FileButton(QStringLiteral("cmdSoundFile"), tr("Sound file"), mannerOf(place).cut, this))
{
    const Manner &manner = mannerOf(place);
    if (manner.buttonTwips > 0)
        m_sound->setFixedWidth(Twips::design(manner.buttonTwips));
    auto *head = new QLabel(tr("Getting attention:"), this);
    head->setObjectName(QStringLiteral("lblAlarm1"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    grid->setHorizontalSpacing(manner.columnSpacing);
    grid->setVerticalSpacing(manner.rowSpacing);
    grid->setColumnStretch(1, 1);
    grid->addWidget(head, 0, 0, 1, 2);
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

std::optional<Flaw> AttentionGroup::findFlaw() const
{
    if (!m_fields.SoundFileOn || !m_fields.SoundFile.isEmpty())
        return std::nullopt;
    return Flaw{{tr("You have selected to play a sound for the alarm.\nPlease enter a valid sound file."),
                 tr("Alarm Sound Error"), Message::Icon::Critical},
                m_sound};
}

QWidget *AttentionGroup::soundSwitch() const
{
    return m_soundOn->box();
}

int AttentionGroup::captionWidth() const
{
    return m_soundOn->sizeHint().width();
}

void AttentionGroup::chooseSound()
{
    const Manner &manner = mannerOf(m_place);
    const QPointer<AttentionGroup> self = this;
    const auto chosen =
        fileChoosing::sound(m_program, tr(manner.chooserTitle), m_fields.SoundFile, manner.cancelled, window());
    if (self == nullptr || !chosen)
        return;
    m_fields.SoundFile = *chosen;
    m_sound->setPath(m_fields.SoundFile);
}
