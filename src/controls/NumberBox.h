// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>
#include <optional>

/// A box for a number. While a text is typed that is no number in range, the value is the one from before the typing
/// began; when the box is left it shows its value.
class NumberBox final : public QLineEdit
{
    Q_OBJECT

public:
    /// The number that a whole text means, or nothing.
    using Reader = std::function<std::optional<double>(const QString &)>;

    NumberBox(const QString &name, Reader reader, QWidget *parent);

    void setValue(double value);
    double value() const { return m_value; }

signals:
    /// By typing only.
    void valueChanged(double value);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void read(const QString &text);
    void settle();

    Reader m_reader;
    double m_value = 0;
    double m_before = 0;
};
