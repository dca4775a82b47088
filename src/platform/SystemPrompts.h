// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Prompts.h"

/// The message boxes of the desktop.
class SystemPrompts final : public Prompts
{
public:
    Answer ask(const Message &message, QWidget *owner) override;
};
