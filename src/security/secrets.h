// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLineEdit;

/// Passwords are overwritten before their memory is given back.
namespace secrets
{

/// Empties the text. A text that somebody else still holds is only let go of.
void wipe(QString &text);
/// Empties the box and what it remembers for undo.
void wipe(QLineEdit &box);

} // namespace secrets
