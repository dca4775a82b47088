// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/ModalDialog.h"

#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;

/// A dialog that asks for passwords: masked boxes one below the other, OK and Cancel. It decides nothing; what was
/// typed is overwritten when it goes.
class PasswordDialog : public ModalDialog
{
    Q_OBJECT

public:
    ~PasswordDialog() override;

protected:
    static constexpr int Margin = 18;
    static constexpr int LeastWidth = 360;

    PasswordDialog(Program &program, QStringView name, const QString &caption, QWidget *owner);

    // Rows, from top to bottom; the buttons come last.
    QLabel *addText(const QString &name, const QString &text);
    /// A box txtPwd* with its caption lblPwd*, both named by the suffix.
    QLineEdit *addBox(const QString &suffix, const QString &caption);
    void addButtons();

    void reject() override;

private:
    void wipeBoxes();

    QFormLayout *m_rows;
    std::vector<QLineEdit *> m_boxes;
};
