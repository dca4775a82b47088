// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "dialogs/AlarmPage.h"

#include "alarms/modAlarm.h"
#include "controls/CheckRow.h"
#include "controls/Pickers.h"
#include "platform/SystemClock.h"
#include "platform/Prompts.h"
#include "forms/Program.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace
{

constexpr int Indent = 22;
constexpr int Spacing = 8;

/// A note that never had an alarm has no date at all.
bool hasNoDate(const clsSettingsProps &settings)
{
    return settings.AlarmDateYear == 0 && settings.AlarmDateMonth == 0 && settings.AlarmDateDay == 0;
}

} // namespace

AlarmPage::AlarmPage(Program &program, clsSettingsProps &settings, QWidget *parent)
    : QWidget(parent), m_program(program), m_settings(settings),
      m_on(new CheckRow(QStringLiteral("Alarm"), tr("&Alarm enabled"), this)), m_frame(new QFrame(this)),
      m_date(new DatePicker(m_frame)), m_time(new TimePicker(m_frame)),
      m_attention(new AttentionGroup(program, AttentionFields::of(settings), tr("Open sound file"), m_frame))
{
    m_frame->setObjectName(QStringLiteral("fraAlarmIn"));
    makePickers();
    layOut();
    connect(m_on->box(), &QCheckBox::toggled, this, &AlarmPage::enable);
    connect(m_date, &QDateEdit::dateChanged, this, [this](QDate date) { modAlarm::setAlarmDate(m_settings, date); });
    connect(m_time, &QTimeEdit::timeChanged, this, [this](QTime time) { modAlarm::setAlarmTime(m_settings, time); });
}

void AlarmPage::makePickers()
{
    m_date->setObjectName(QStringLiteral("dtpAlarmDate"));
    m_time->setObjectName(QStringLiteral("dtpAlarmTime"));
    m_date->setMinimumWidth(m_date->sizeHint().width() + Spacing);
    m_time->setMinimumWidth(m_date->minimumWidth());
}

void AlarmPage::layOut()
{
    auto *inner = new QVBoxLayout(m_frame);
    inner->setContentsMargins(Indent - CheckRow::MarkRoom, 0, 0, 0);
    inner->setSpacing(2 * Spacing);
    auto *pickers = new QFormLayout;
    pickers->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    pickers->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    pickers->setVerticalSpacing(Spacing);
    pickers->setHorizontalSpacing(2 * Spacing);
    pickers->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pickers->addRow(tr("&Date:"), m_date);
    pickers->addRow(tr("&Time:"), m_time);
    inner->addLayout(pickers);
    inner->addWidget(m_attention);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    layout->setSpacing(Spacing);
    layout->addWidget(m_on);
    layout->addWidget(m_frame);
    layout->addStretch();
}

void AlarmPage::showFields()
{
    const QSignalBlocker quietDate(m_date);
    const QSignalBlocker quietTime(m_time);
    const QDateTime now = m_program.clock().now();
    const bool none = hasNoDate(m_settings);
    m_date->setDate(none ? now.date() : modAlarm::nearestRealDate(m_settings));
    m_time->setTime(none ? now.time() : modAlarm::nearestRealTime(m_settings));
    m_attention->showFields();
    m_on->box()->setChecked(m_settings.AlarmOn);
    m_frame->setEnabled(m_settings.AlarmOn);
}

/// From now on what the pickers show counts, also where the record held no date that they could show.
void AlarmPage::enable(bool on)
{
    m_settings.AlarmOn = on;
    m_frame->setEnabled(on);
    if (on)
        storePickers();
}

void AlarmPage::storePickers()
{
    modAlarm::setAlarmDate(m_settings, m_date->date());
    modAlarm::setAlarmTime(m_settings, m_time->time());
}

bool AlarmPage::isAhead()
{
    if (!m_settings.AlarmOn || modAlarm::AlarmDelay(m_settings, m_program.clock().now()).future)
        return true;
    m_program.prompts().tell(
        {tr("You need to choose an alarm time in the future"), tr("Alarm set failure"), Message::Icon::Critical},
        window());
    return false;
}

QWidget *AlarmPage::firstField() const
{
    return m_on->box();
}

QWidget *AlarmPage::dateField() const
{
    return m_date;
}
