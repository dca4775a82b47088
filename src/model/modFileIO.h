// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

// The program's own files: notes, options and recent lists. Each has a header of its own for who needs no more.
#include "model/SaveBatch.h"
#include "model/modFileIOData.h"
#include "model/modFileIOFolder.h"
#include "model/modFileIOOptions.h"
#include "model/modFileIORecent.h"
