// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// What the owners of the precompiled headers compile: nothing.
