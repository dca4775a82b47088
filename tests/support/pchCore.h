// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// Precompiled for all tests; no source relies on it.
#pragma once

#include <QtCore/QtCore>
#include <QtTest/QtTest>

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
