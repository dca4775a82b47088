// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "notes/commands/noteKeys.h"

#include "notes/commands/LiveNote.h"
#include "notes/commands/NoteAction.h"

#include <QKeyEvent>

namespace
{

struct CommandKey
{
    QKeyCombination keys;
    NoteCommand command;
};

/// Without Shift where a keyboard may need it for the sign.
constexpr CommandKey Keys[] = {
    {Qt::Key_F1, NoteCommand::Help},
    {Qt::Key_F2, NoteCommand::Title},
    {Qt::Key_F3, NoteCommand::FindNext},
    {Qt::CTRL | Qt::Key_P, NoteCommand::Print},
    {Qt::CTRL | Qt::Key_W, NoteCommand::Move},
    {Qt::CTRL | Qt::Key_Plus, NoteCommand::LargerFont},
    {Qt::CTRL | Qt::Key_Equal, NoteCommand::LargerFont},
    {Qt::CTRL | Qt::Key_Minus, NoteCommand::SmallerFont},
    {Qt::CTRL | Qt::Key_Underscore, NoteCommand::SmallerFont},
    {Qt::CTRL | Qt::Key_0, NoteCommand::UsualFont},
};

NoteCommand commandOf(const QKeyEvent &key)
{
    const bool isSign = key.key() == Qt::Key_Plus || key.key() == Qt::Key_Underscore;
    const Qt::KeyboardModifiers ignored = isSign ? Qt::KeypadModifier | Qt::ShiftModifier : Qt::KeypadModifier;
    const QKeyCombination keys(key.modifiers() & ~ignored, static_cast<Qt::Key>(key.key()));
    for (const CommandKey &row : Keys)
        if (row.keys == keys)
            return row.command;
    return NoteCommand::None;
}

/// What the press writes; a key that is held down goes on where the first press has led.
QString writtenBy(const QKeyEvent &key)
{
    constexpr auto Commanding = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = key.text();
    if (key.isAutoRepeat() || (key.modifiers() & Commanding) != 0 || text.isEmpty())
        return {};
    return QChar::isPrint(text.toUcs4().constFirst()) ? text : QString();
}

bool isEnter(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

bool noteKeys::press(const QKeyEvent &key, const LiveNote &note, const NoteAction &action)
{
    const NoteCommand command = commandOf(key);
    const QString written = writtenBy(key);
    if (command != NoteCommand::None)
        action.run(command);
    else if (isEnter(key) && note.locked)
        action.unlock();
    else if (isEnter(key) || (!written.isEmpty() && !note.locked))
        action.editText(written);
    else
        return note.body.scrollByKey(key);
    return true;
}
