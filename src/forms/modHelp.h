// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

class Program;

/// The help pages.
namespace modHelp
{

/// Opens the help in the browser; a box says when there is no browser or no help.
void ShowHelp(Program &program);

} // namespace modHelp
