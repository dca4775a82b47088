// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "alarms/NoteAlarm.h"
#include "model/clsNoteProps.h"
#include "notes/parts/NoteBody.h"

#include <memory>

/// One note of the NoteStack: its record, what is shown of it, and its alarm. It stays where it is in memory while
/// tabs come and go.
struct StackNote
{
    clsNoteProps record;
    NoteInk ink;
    std::unique_ptr<NoteBody> body;
    std::unique_ptr<NoteAlarm> alarm;
    bool locked = false;
};
