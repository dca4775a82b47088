// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Form;
class Program;

/// Hiding all notes for a while, with the NoteStack. Nothing of it is stored: the next start shows them.
namespace modForms
{

/// Hides every note that is shown; when some are hidden, brings those back where they were instead.
void ShowOrHideAll(Program &program);
/// The window is hidden by that.
bool isHiddenWithAll(const Program &program, Form &form);
/// Shows the window where it was when it is hidden by that; the others stay hidden.
void bringBack(Program &program, Form &form);

} // namespace modForms
