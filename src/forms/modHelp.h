// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Program;
class QUrl;

/// Pages in the browser.
namespace modHelp
{

/// Opens the help in the browser; a box says when there is no browser or no help.
void ShowHelp(Program &program);
/// Opens a page, or a mail to be written; a box says when there is nothing to open it with.
void openPage(Program &program, const QUrl &page);

} // namespace modHelp
