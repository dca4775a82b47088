// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Prompts.h"

#include <optional>

/// What is wrong with what was entered, and the field in which it can be mended.
struct Flaw
{
    Message message;
    QWidget *field;
};
