// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

struct HomeRules;

/// The menus, texts and rules of notes on the desktop.
extern const HomeRules DesktopHome;
