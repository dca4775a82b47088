// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "alarms/frmAlarmSettings.h"

#include "alarms/modAlarm.h"
#include "controls/CheckRow.h"
#include "controls/Pickers.h"
#include "model/modCopyObject.h"
#include "drawing/textShortening.h"
#include "platform/SystemChoosers.h"
#include "platform/SystemClock.h"
#include "platform/Prompts.h"
#include "drawing/toolTips.h"
#include "forms/Program.h"
#include "forms/modForms.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace
{

constexpr int Margin = 18;
constexpr int SoundButtonWidth = 2600; // design twips
constexpr int TooltipWidth = 600;

QLabel *makeLabel(const QString &name, const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setBuddy(buddy);
    if (buddy != nullptr)
        buddy->setAccessibleName(QString(text).remove(u'&').remove(u':'));
    return label;
}

} // namespace

frmAlarmSettings::frmAlarmSettings(Program &program, QWidget *owner)
    : QDialog(owner), Form(program.forms, Name.toString()), m_program(program),
      m_on(new CheckRow(QStringLiteral("Alarm"), tr("&Alarm enabled"), this)), m_frame(new QFrame(this)),
      m_date(new DatePicker(m_frame)), m_time(new TimePicker(m_frame)),
      m_flash(new CheckRow(QStringLiteral("Flash"), tr("&Flashing window"), m_frame)),
      m_soundOn(new CheckRow(QStringLiteral("SoundFile"), tr("Play &sound (*.wav):"), m_frame)),
      m_soundFile(new QPushButton(m_frame))
{
    setObjectName(formName());
    setWindowTitle(tr("This note's alarm settings"));
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin / 2);
    layout->addWidget(m_on);
    layout->addWidget(makeFrame());
    layout->addStretch(1);
    layout->addWidget(makeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connectControls();
}

frmAlarmSettings::~frmAlarmSettings()
{
    modForms::ShowNoteWindows(m_program);
}

QWidget *frmAlarmSettings::makeFrame()
{
    m_frame->setObjectName(QStringLiteral("fraAlarmIn"));
    m_frame->setFrameShape(QFrame::StyledPanel);
    m_date->setObjectName(QStringLiteral("dtpAlarmDate"));
    m_time->setObjectName(QStringLiteral("dtpAlarmTime"));
    makeSoundButton();

    auto *grid = new QGridLayout(m_frame);
    grid->setContentsMargins(Margin, Margin * 2 / 3, Margin, Margin * 2 / 3);
    grid->setHorizontalSpacing(Margin * 2 / 3);
    grid->addWidget(makeLabel(QStringLiteral("lblAlarmDate"), tr("&Date:"), m_date, m_frame), 0, 0);
    grid->addWidget(m_date, 0, 1);
    grid->addWidget(makeLabel(QStringLiteral("lblAlarmTime"), tr("&Time:"), m_time, m_frame), 1, 0);
    grid->addWidget(m_time, 1, 1);
    grid->setRowMinimumHeight(2, Margin / 2);
    grid->addWidget(makeLabel(QStringLiteral("lblAlarm1"), tr("Getting attention:"), nullptr, m_frame), 3, 0, 1, 2);
    grid->addWidget(m_flash, 4, 0, 1, 2);
    grid->addWidget(m_soundOn, 5, 0);
    grid->addWidget(m_soundFile, 5, 1);
    return m_frame;
}

void frmAlarmSettings::makeSoundButton()
{
    m_soundFile->setObjectName(QStringLiteral("cmdSoundFile"));
    m_soundFile->setAutoDefault(false);
    m_soundFile->setText(tr("Choose file"));
    m_soundFile->setFixedWidth(qMax(Twips::design(SoundButtonWidth), m_soundFile->sizeHint().width()));
}

QWidget *frmAlarmSettings::makeButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setText(tr("OK"));
    ok->setDefault(true);
    QPushButton *cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    cancel->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmAlarmSettings::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmAlarmSettings::reject);
    return buttons;
}

void frmAlarmSettings::connectControls()
{
    connect(m_on->box(), &QCheckBox::toggled, this, [this](bool on) {
        m_alarm.AlarmOn = on;
        showAlarm();
    });
    connect(m_flash->box(), &QCheckBox::toggled, this, [this](bool on) { m_alarm.FlashOn = on; });
    connect(m_soundOn->box(), &QCheckBox::toggled, this, [this](bool on) { m_alarm.SoundFileOn = on; });
    connect(m_date, &QDateEdit::dateChanged, this, [this](QDate date) { modAlarm::setAlarmDate(m_alarm, date); });
    connect(m_time, &QTimeEdit::timeChanged, this, [this](QTime time) { modAlarm::setAlarmTime(m_alarm, time); });
    connect(m_soundFile, &QPushButton::clicked, this, &frmAlarmSettings::chooseSoundFile);
}

void frmAlarmSettings::Initialize(const clsNoteProps &record)
{
    modCopyObject::CopyNoteToAlarm(record, m_alarm);
    if (!m_alarm.AlarmOn) {
        const QDateTime now = m_program.clock().now();
        modAlarm::setAlarmDate(m_alarm, now.date());
        modAlarm::setAlarmTime(m_alarm, now.time());
    }
    // What stands in the record and makes no date becomes what the pickers show.
    modAlarm::setAlarmDate(m_alarm, modAlarm::nearestRealDate(m_alarm));
    modAlarm::setAlarmTime(m_alarm, modAlarm::nearestRealTime(m_alarm));
    m_on->box()->setChecked(m_alarm.AlarmOn);
    showAlarm();
    m_on->box()->setFocus();
}

void frmAlarmSettings::AlarmResult(clsNoteProps &record) const
{
    if (m_accepted)
        modCopyObject::CopyAlarmToNote(m_alarm, record);
}

void frmAlarmSettings::showAlarm()
{
    m_date->setDate(modAlarm::nearestRealDate(m_alarm));
    m_time->setTime(modAlarm::nearestRealTime(m_alarm));
    m_flash->box()->setChecked(m_alarm.FlashOn);
    m_soundOn->box()->setChecked(m_alarm.SoundFileOn);
    m_frame->setEnabled(m_alarm.AlarmOn);
    m_soundFile->setEnabled(m_alarm.AlarmOn);
    showSoundFile();
}

void frmAlarmSettings::showSoundFile()
{
    // A path may come from a record that somebody made: no line ends in the caption, no markup in the tooltip.
    const QString path = modForms::FlattenText(m_alarm.SoundFile);
    const int room = m_soundFile->minimumWidth() - m_program.twips.toPixels(m_program.DialogOffset);
    const QString caption =
        path.isEmpty() ? tr("Choose file") : textShortening::shortened(path, room, m_soundFile->font());
    m_soundFile->setText(QString(caption).replace(u'&', QLatin1String("&&")));
    m_soundFile->setAccessibleName(tr("Sound file: %1").arg(caption));
    m_soundFile->setToolTip(toolTips::plain(textShortening::shortened(path, TooltipWidth, font())));
}

void frmAlarmSettings::chooseSoundFile()
{
    const FileRequest request{
        tr("Open sound file"), {tr("WAV Files (*.wav)"), tr("All Files (*.*)")}, m_alarm.SoundFile};
    const QPointer<frmAlarmSettings> self = this;
    const auto chosen = m_program.choosers().openFile(request, this);
    if (self == nullptr || isUnloaded())
        return;
    const QString name = chosen.value_or(m_alarm.SoundFile);
    if (!modForms::IsSoundFile(name)) {
        refuse(tr("Invalid sound file."), tr("Error"));
        return;
    }
    m_alarm.SoundFile = name;
    showSoundFile();
}

bool frmAlarmSettings::checkAlarm()
{
    if (!modAlarm::AlarmDelay(m_alarm, m_program.clock().now()).future) {
        refuse(tr("You need to choose an alarm time in the future"), tr("Alarm set failure"));
        return false;
    }
    if (m_alarm.SoundFileOn && m_alarm.SoundFile.isEmpty()) {
        m_soundFile->setFocus();
        refuse(tr("You have selected to play a sound for the alarm.\nPlease enter a valid sound file."),
               tr("Alarm Sound Error"));
        return false;
    }
    return true;
}

void frmAlarmSettings::refuse(const QString &text, const QString &caption)
{
    m_program.prompts().tell({text, caption, Message::Icon::Critical}, this);
}

void frmAlarmSettings::accept()
{
    if (m_alarm.AlarmOn && !checkAlarm())
        return;
    m_accepted = true;
    QDialog::accept();
}

void frmAlarmSettings::reject()
{
    m_accepted = false;
    QDialog::reject();
}
