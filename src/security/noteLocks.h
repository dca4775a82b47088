// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/clsNoteProps.h"

#include <QString>

class Program;
class QWidget;

/// What a note's password refuses or asks for, the same wherever the note lives.
namespace noteLocks
{

/// The note is not to be changed or exported without its password.
bool isReadOnly(const clsNoteProps &note);
/// The note opens locked.
bool opensLocked(const clsNoteProps &note);

/// Asks for a password with the description; true when what was typed is `pwd`, false for anything else and for
/// Cancel. While one prompt is open a second one is not stacked on it but refused.
bool AuthenticateNote(Program &program, const QString &description, const QString &pwd, QWidget *owner);

/// What is said when the password was wrong.
struct Refusal
{
    QString text;
    QString caption;
};

/// True when the action may go on: the note is not read-only, or its password was given. Otherwise the refusal is
/// shown. The note may be gone when this returns.
bool checkReadOnly(Program &program, const clsNoteProps &note, const QString &description, const Refusal &refusal,
                   QWidget *owner);

// The checks of single actions that both kinds of notes have.

bool checkEditing(Program &program, const clsNoteProps &note, QWidget *owner);
/// `title` is the note's, shortened for the prompt.
bool checkTitleEditing(Program &program, const clsNoteProps &note, const QString &title, QWidget *owner);
/// Asks for the password of a locked note; a wrong one is told. A note without a password takes an empty entry.
bool checkUnlocking(Program &program, const clsNoteProps &note, const QString &title, QWidget *owner);
/// `failure` as in "Access to Alarm functions failed.".
bool checkAccess(Program &program, const clsNoteProps &note, const QString &failure, QWidget *owner);

/// The prompt's description of most actions.
QString readOnlyDescription();

} // namespace noteLocks
