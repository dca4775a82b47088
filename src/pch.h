// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// Precompiled for the libraries that have windows; no source relies on it.
#pragma once

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
