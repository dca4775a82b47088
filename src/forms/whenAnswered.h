// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class Program;
class QObject;

/// Calls once, from the event loop, as soon as no dialog, box or chooser is open; not when the context has gone by
/// then.
void whenAnswered(Program &program, QObject *context, std::function<void()> then);
