// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QDialog>

#include <vector>

class Program;
class QFormLayout;
class QLabel;
class QLineEdit;

/// A dialog that asks for passwords: masked boxes one below the other, OK and Cancel. It decides nothing; what was
/// typed is overwritten when it goes.
class PasswordDialog : public QDialog, public Form
{
    Q_OBJECT

public:
    ~PasswordDialog() override;

    QWidget *window() override { return this; }

protected:
    static constexpr int Margin = 18;
    static constexpr int LeastWidth = 360;

    PasswordDialog(Program &program, QStringView name, const QString &caption, QWidget *owner);

    // Rows, from top to bottom; the buttons come last.
    QLabel *addText(const QString &name, const QString &text);
    /// A box txtPwd* with its caption lblPwd*, both named by the suffix.
    QLineEdit *addBox(const QString &suffix, const QString &caption);
    void addButtons();

    void tell(const QString &text);
    void wipeBoxes();

private:
    Program &m_program;
    QFormLayout *m_rows;
    std::vector<QLineEdit *> m_boxes;
};
