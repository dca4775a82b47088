// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "net/Notice.h"
#include "platform/Prompts.h"

class Program;

/// What the network tells, in a box.
namespace noticeBox
{

Message messageOf(const Notice &notice);
/// Events run while the box is open.
void tell(Program &program, const Notice &notice, QWidget *owner);

} // namespace noticeBox
