// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
// Precompiled for the tests of libraries that have windows; no source relies on it.
#pragma once

#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>

#include "support/pchCore.h"
