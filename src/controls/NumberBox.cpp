// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "controls/NumberBox.h"

#include <QSignalBlocker>

namespace
{
constexpr int Digits = 10;
}

NumberBox::NumberBox(const QString &name, Reader reader, QWidget *parent)
    : QLineEdit(parent), m_reader(std::move(reader))
{
    setObjectName(name);
    connect(this, &QLineEdit::textChanged, this, &NumberBox::read);
    connect(this, &QLineEdit::editingFinished, this, &NumberBox::settle);
}

void NumberBox::setValue(double value)
{
    m_value = value;
    settle();
}

void NumberBox::focusInEvent(QFocusEvent *event)
{
    m_before = m_value;
    QLineEdit::focusInEvent(event);
}

void NumberBox::read(const QString &text)
{
    const double value = m_reader(text).value_or(m_before);
    if (std::exchange(m_value, value) != value)
        emit valueChanged(value);
}

void NumberBox::settle()
{
    m_before = m_value;
    const QSignalBlocker silent(this);
    setText(QString::number(m_value, 'g', Digits));
}
