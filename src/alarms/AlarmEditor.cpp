// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/AlarmEditor.h"

#include "controls/CheckRow.h"
#include "controls/Pickers.h"
#include "forms/Program.h"
#include "platform/Clock.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

/// How the dialogs lay it out, in pixels.
struct AlarmEditor::Manner
{
    int spacing;
    QFrame::Shape frame;
    QMargins inFrame;
    QSize pickerSpacing;
    int aboveAttention;
    bool isOneGrid; ///< The pickers fill the column of the sound file's button.
};

namespace
{

constexpr int PickerRoom = 8;

/// A note that never had an alarm has no date at all.
bool hasNoDate(const AlarmFields &fields)
{
    return fields.AlarmDateYear == 0 && fields.AlarmDateMonth == 0 && fields.AlarmDateDay == 0;
}

QLabel *captionOf(QWidget &field, const QString &name, const QString &text)
{
    auto *caption = new QLabel(text, field.parentWidget());
    caption->setObjectName(name);
    caption->setBuddy(&field);
    field.setAccessibleName(QString(text).remove(u'&').remove(u':'));
    return caption;
}

} // namespace

const AlarmEditor::Manner &AlarmEditor::mannerOf(Place place)
{
    static constexpr Manner InDialog{.spacing = 9,
                                     .frame = QFrame::StyledPanel,
                                     .inFrame = {14, 12, 18, 12},
                                     .pickerSpacing = {12, 6},
                                     .aboveAttention = 15,
                                     .isOneGrid = true};
    static constexpr Manner InSettings{.spacing = 8,
                                       .frame = QFrame::NoFrame,
                                       .inFrame = {18, 0, 0, 0},
                                       .pickerSpacing = {16, 8},
                                       .aboveAttention = 16,
                                       .isOneGrid = false};
    return place == Place::AlarmDialog ? InDialog : InSettings;
}

AlarmEditor::AlarmEditor(Program &program, AlarmFields fields, Place place, QWidget *parent)
    : QWidget(parent), m_program(program), m_fields(fields),
      m_on(new CheckRow(QStringLiteral("Alarm"), tr("&Alarm enabled"), this)), m_frame(new QFrame(this)),
      m_date(new DatePicker(m_frame)), m_time(new TimePicker(m_frame)),
      m_attention(new AttentionGroup(program, fields.attention, place, m_frame))
{
    m_frame->setObjectName(QStringLiteral("fraAlarmIn"));
    m_date->setObjectName(QStringLiteral("dtpAlarmDate"));
    m_time->setObjectName(QStringLiteral("dtpAlarmTime"));
    layOut(mannerOf(place));
    connect(m_on->box(), &QCheckBox::toggled, this, &AlarmEditor::enable);
    connect(m_date, &QDateEdit::dateChanged, this, [this](QDate date) { modAlarm::setAlarmDate(m_fields, date); });
    connect(m_time, &QTimeEdit::timeChanged, this, [this](QTime time) { modAlarm::setAlarmTime(m_fields, time); });
}

void AlarmEditor::layOut(const Manner &manner)
{
    m_frame->setFrameShape(manner.frame);
    auto *inner = new QVBoxLayout(m_frame);
    inner->setContentsMargins(manner.inFrame);
    inner->setSpacing(manner.aboveAttention);
    inner->addLayout(makePickers(manner));
    inner->addWidget(m_attention);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    layout->setSpacing(manner.spacing);
    layout->addWidget(m_on);
    layout->addWidget(m_frame);
    layout->addStretch();
}

QLayout *AlarmEditor::makePickers(const Manner &manner)
{
    auto *pickers = new QFormLayout;
    pickers->setContentsMargins(CheckRow::MarkRoom, 0, 0, 0);
    pickers->setHorizontalSpacing(manner.pickerSpacing.width());
    pickers->setVerticalSpacing(manner.pickerSpacing.height());
    pickers->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pickers->setFieldGrowthPolicy(manner.isOneGrid ? QFormLayout::AllNonFixedFieldsGrow
                                                   : QFormLayout::FieldsStayAtSizeHint);
    QLabel *dateCaption = captionOf(*m_date, QStringLiteral("lblAlarmDate"), tr("&Date:"));
    pickers->addRow(dateCaption, m_date);
    pickers->addRow(captionOf(*m_time, QStringLiteral("lblAlarmTime"), tr("&Time:")), m_time);
    if (manner.isOneGrid)
        dateCaption->setMinimumWidth(m_attention->captionWidth());
    m_date->setMinimumWidth(m_date->sizeHint().width() + PickerRoom);
    m_time->setMinimumWidth(m_date->minimumWidth());
    return pickers;
}

void AlarmEditor::showFields()
{
    const QSignalBlocker quietDate(m_date);
    const QSignalBlocker quietTime(m_time);
    const QDateTime now = m_program.clock().now();
    const bool none = hasNoDate(m_fields);
    m_date->setDate(none ? now.date() : modAlarm::nearestRealDate(m_fields));
    m_time->setTime(none ? now.time() : modAlarm::nearestRealTime(m_fields));
    m_attention->showFields();
    m_on->box()->setChecked(m_fields.AlarmOn);
    enable(m_fields.AlarmOn);
    m_shown.reset();
    if (m_fields.AlarmOn && modAlarm::AlarmDelay(m_fields, now).future)
        m_shown = m_fields;
}

void AlarmEditor::enable(bool on)
{
    m_fields.AlarmOn = on;
    m_frame->setEnabled(on);
    if (on)
        storePickers();
}

void AlarmEditor::storePickers()
{
    modAlarm::setAlarmDate(m_fields, m_date->date());
    modAlarm::setAlarmTime(m_fields, m_time->time());
}

std::optional<Flaw> AlarmEditor::findFlaw() const
{
    if (!m_fields.AlarmOn || modAlarm::AlarmDelay(m_fields, m_program.clock().now()).future)
        return std::nullopt;
    return Flaw{
        {tr("You need to choose an alarm time in the future"), tr("Alarm set failure"), Message::Icon::Critical},
        m_date};
}

bool AlarmEditor::isAsShown() const
{
    return m_fields.AlarmOn && m_shown == modAlarm::AlarmMoment(m_fields);
}

QWidget *AlarmEditor::firstField() const
{
    return m_on->box();
}
