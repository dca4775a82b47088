// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <type_traits>

/// QCOMPARE as a row of a table within one function, for what needs no set-up: a failure names the row and its line,
/// and the rows behind it run all the same.
template <class Value>
void compareRow(const char *row, const Value &actual, const std::type_identity_t<Value> &expected,
                const char *file = __builtin_FILE(), int line = __builtin_LINE())
{
    QTest::qCompare(actual, expected, row, "expected", file, line);
}
