// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialogButtonBox>

class QDialog;

/// The row of buttons that closes a dialog.
namespace dialogButtons
{

struct Button
{
    QDialogButtonBox::StandardButton kind; ///< Ok or Cancel.
    const char *name;                      ///< Of the object.
};

/// OK accepts the dialog, also by the Enter key; Cancel rejects it.
QDialogButtonBox *make(QDialog &dialog, std::initializer_list<Button> buttons);

} // namespace dialogButtons
