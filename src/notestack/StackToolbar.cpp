// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notestack/StackToolbar.h"

#include <array>

using namespace std::chrono_literals;

namespace
{

constexpr int Side = 28;
constexpr int Pitch = 30;
constexpr int First = 6;
constexpr int StatusRight = 8;
constexpr qreal StatusPoints = 7.5;
constexpr auto Pause = 100ms;

constexpr ButtonStrip::Button Buttons[] = {
    {"imgAdd", QT_TRANSLATE_NOOP("ButtonStrip", "Add A Quillet"), "addup.gif", "adddown.gif"},
    {"imgDelete", QT_TRANSLATE_NOOP("ButtonStrip", "Delete A Quillet"), "deleteup.gif", "deletedown.gif"},
    {"imgToDesktop", QT_TRANSLATE_NOOP("ButtonStrip", "Transfer Quillet To Desktop"), "desktopup.gif",
     "desktopdown.gif"},
    {"imgSettings", QT_TRANSLATE_NOOP("ButtonStrip", "Quillet Settings"), "settingsup.gif", "settingsdown.gif"},
    {"imgEmail", QT_TRANSLATE_NOOP("ButtonStrip", "E-mail Quillet"), "emailup.gif", "emaildown.gif"},
    {"imgSend", QT_TRANSLATE_NOOP("ButtonStrip", "Send A Quillet"), "sendup.gif", "senddown.gif"},
    {"imgAlarm", QT_TRANSLATE_NOOP("ButtonStrip", "Alarm Settings"), "alarmup.gif", "alarmdown.gif"},
    {"imgPassword", QT_TRANSLATE_NOOP("ButtonStrip", "Password Settings"), "passwordup.gif", "passworddown.gif"},
    {"imgHelp", QT_TRANSLATE_NOOP("ButtonStrip", "Help"), "helpup.gif", "helpdown.gif"},
    {"imgHide", QT_TRANSLATE_NOOP("ButtonStrip", "Hide NoteStack"), "hideup.gif", "hidedown.gif"},
};

} // namespace

StackToolbar::StackToolbar(const Pictures &pictures, QWidget *parent)
    : ButtonStrip(pictures, QStringLiteral("fraToolBar"), Buttons, StatusPoints, parent)
{
    setPause(Pause);
}

NoteCommand StackToolbar::noteCommand(Command command)
{
    constexpr std::array Commands{NoteCommand::None,  NoteCommand::Delete, NoteCommand::Move,  NoteCommand::Settings,
                                  NoteCommand::Email, NoteCommand::Send,   NoteCommand::Alarm, NoteCommand::Password,
                                  NoteCommand::Help,  NoteCommand::None};
    return Commands[static_cast<size_t>(command)];
}

void StackToolbar::showState(const clsNoteProps *note)
{
    button(static_cast<size_t>(Command::Alarm)).setDown(note != nullptr && note->AlarmOn);
    button(static_cast<size_t>(Command::Password)).setDown(note != nullptr && note->PwdOn);
}

void StackToolbar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // In a narrow window they move together: none is to vanish.
    const int pitch = qMin(Pitch, (width() - First) / static_cast<int>(buttonCount()));
    const int side = qMin(Side, pitch);
    int left = First;
    for (size_t i = 0; i < buttonCount(); ++i) {
        button(i).setGeometry(left, (height() - Side) / 2, side, Side);
        left += pitch;
    }
    placeStatus({left, 0, qMax(0, width() - left - StatusRight), height()});
}
