// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QSize>
#include <QString>
#include <QStringView>

class Program;
class QWidget;

/// What every window of the program shares.
namespace modForms
{

// Windows.

/// Gives a window its design size (twips of the design display); its layout places the controls.
void ScaleForm(QWidget &form, QSize designTwips);
/// Takes entries out of the system menu and with them the buttons of the frame; the positions are those of the menu:
/// 0 restore, 1 move, 2 size, 3 minimize, 4 maximize, 5 separator, 6 close. To be said before the window is shown.
void RemoveSystemMenuItems(QWidget &form, bool r0, bool r1, bool r2, bool r3, bool r4, bool r5, bool r6);
/// Watches the program and passes on to a loaded form what concerns it: another program became active. It goes on
/// until UnhookWindow or the end of the form's window.
void HookWindow(Forms &forms, Form &form);
void UnhookWindow(Form &form);
/// Shows every note window that is hidden; said by every dialog when it goes.
void ShowNoteWindows(Program &program);
/// True while a window is shown that is none of the program's own five kinds.
bool IsDialogShowing(const Program &program);
/// From a note, the NoteStack or the main panel to the next of these windows that is shown: desktops list no notes in
/// their window switcher.
void activateNext(Program &program, Form &from);
/// Writes what is not on the disk without the help of any window, and tells nobody.
void rescueNotes(Program &program);
/// Hides, destroys and unloads every window but the main panel, which is hidden. Saves nothing.
void CloseAllWindows(Program &program);

// Notes.

/// Writes a note into the data file when it has changed. A failure leaves it marked changed and is told once.
void saveNote(Program &program, clsNoteProps &note);
/// Takes a note out of the data file.
void removeNote(Program &program, const clsNoteProps &note);
/// Something is not on the disk as it is.
bool hasUnsavedNotes(const Program &program);
/// Saves every note that has changed, with one write of the file; false when there is none at all.
bool SaveAllNotes(Program &program);
/// The same, with a progress window that can stop it.
bool SaveAllWithProgress(Program &program);
/// Moves every note of the desktop into the NoteStack, with a progress window that can stop it.
void TransferAllToNoteStack(Program &program);

/// Moves notes one by one, with a progress window that can stop it and one write of the data file at the end.
void moveAll(Program &program, const QString &text, const std::vector<qint32> &tags,
             const std::function<void(qint32)> &move);

// Texts.

/// The text with its first "&" doubled.
QString DoubleFirstAmpersand(const QString &text);
/// What a caption made by DoubleFirstAmpersand shows: the first "&&" as one "&".
QString shownCaption(const QString &caption);
/// By the last three letters of the trimmed path, case-sensitive.
bool IsPictureFile(QStringView path);
bool IsSoundFile(QStringView path);
/// One line of a text of many: blanks trimmed, tabs to blanks, line ends to ", ".
QString FlattenText(const QString &text);

} // namespace modForms
