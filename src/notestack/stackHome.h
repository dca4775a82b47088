// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

struct HomeRules;

/// The menus, texts and rules of notes in the NoteStack.
extern const HomeRules StackHome;
