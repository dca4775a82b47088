// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class Form;
class Forms;
class Program;
class QWidget;

/// What every window of the program shares.
namespace modForms
{

/// Gives a window its design size (twips of the design display); its layout places the controls.
void ScaleForm(QWidget &form, QSize designTwips);
/// Takes entries out of the system menu and with them the buttons of the frame; the positions are those of the menu:
/// 0 restore, 1 move, 2 size, 3 minimize, 4 maximize, 5 separator, 6 close. To be said before the window is shown.
void RemoveSystemMenuItems(QWidget &form, bool r0, bool r1, bool r2, bool r3, bool r4, bool r5, bool r6);
/// Watches the program and passes on to a loaded form what concerns it: another program became active. It goes on
/// until UnhookWindow or the end of the form's window.
void HookWindow(Forms &forms, Form &form);
void UnhookWindow(Form &form);
/// Shows every note window that is hidden, but not those that all were hidden with; said by every dialog when it goes.
/// Nothing while another dialog, a box or a chooser is open.
void ShowNoteWindows(Program &program);
/// True while a window is shown that is none of those that wait for nobody.
bool IsDialogShowing(const Program &program);
/// True while a person is to answer something: a dialog, a box or a chooser is open.
bool isAnswerAwaited(const Program &program);
/// From a note, the NoteStack, the main panel, a quiet line or the search to the next of these windows that is shown: desktops list
/// no notes in their window switcher.
void activateNext(Program &program, Form &from);
/// Hides, destroys and unloads every window but the main panel, which is hidden. Saves nothing.
void CloseAllWindows(Program &program);

} // namespace modForms
